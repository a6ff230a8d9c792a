#pragma once

#include "data/tableowner.h"
#include "engine/records/tablereader.h"
#include "engine/store/database.h"

namespace Tallymere {

// A list of a drop-down field: the rows of a table by name, each standing for its key.
struct LookupList
{
    Engine::TableReader &table;
    QString nameField;
    QString title; // of the open list
};

// One table for each list that screens offer in drop-down fields, in the order the user sees. tblItem and
// tblItemType are open from the beginning; every other table is opened by the first call of its function, so that a
// host table that is missing fails where it is needed and nowhere else.
class TdmLookUpsInv final : public TableOwner
{
public:
    explicit TdmLookUpsInv(Engine::Database &database);

    // The whole set that screens and reports look things up in; some wait for theirs.
    Engine::TableReader &tblTax() { return opened(m_tax); }
    Engine::TableReader &tblSalesman() { return opened(m_salesman); } // + FullName
    Engine::TableReader &tblCusType() { return opened(m_cusType); } // the host's
    Engine::TableReader &tblCurrency() { return opened(m_currency); }
    Engine::TableReader &tblItem() { return opened(m_item); }
    Engine::TableReader &tblCustomer() { return opened(m_customer); } // the host's; + Address, ShipToAddress
    Engine::TableReader &tblGLAccnt() { return opened(m_glAccnt); } // + AccountName30
    Engine::TableReader &tblVendor() { return opened(m_vendor); } // + Address, CityStateZip
    Engine::TableReader &tblBank() { return opened(m_bank); }
    Engine::TableReader &tblItemType() { return opened(m_itemType); }
    Engine::TableReader &tblWarehse() { return opened(m_warehse); }
    Engine::TableReader &tblLogo() { return opened(m_logo); } // the host's

    QList<Engine::TableReader *> ownedTables() override; // as they are, opened or not

    // The lists that fields of records choose from, by their table: "Currency", "ItemType", "Warehse". Opened.
    LookupList list(QStringView table);

private:
    static Engine::TableReader &opened(Engine::TableReader &table);
    void describeCalculatedFields();

    Engine::TableReader m_tax;
    Engine::TableReader m_salesman;
    Engine::TableReader m_cusType;
    Engine::TableReader m_currency;
    Engine::TableReader m_item;
    Engine::TableReader m_customer;
    Engine::TableReader m_glAccnt;
    Engine::TableReader m_vendor;
    Engine::TableReader m_bank;
    Engine::TableReader m_itemType;
    Engine::TableReader m_warehse;
    Engine::TableReader m_logo;
};

} // namespace Tallymere
