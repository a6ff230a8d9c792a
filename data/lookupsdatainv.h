#pragma once

#include "data/tableowner.h"
#include "engine/database.h"
#include "engine/table.h"

namespace Tallymere {

// A list of a drop-down field: the rows of a table by name, each standing for its key.
struct LookupList
{
    Engine::Table &table;
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
    Engine::Table &tblTax() { return opened(m_tax); }
    Engine::Table &tblSalesman() { return opened(m_salesman); } // + FullName
    Engine::Table &tblCusType() { return opened(m_cusType); } // the host's
    Engine::Table &tblCurrency() { return opened(m_currency); }
    Engine::Table &tblItem() { return opened(m_item); }
    Engine::Table &tblCustomer() { return opened(m_customer); } // the host's; + Address, ShipToAddress
    Engine::Table &tblGLAccnt() { return opened(m_glAccnt); } // + AccountName30
    Engine::Table &tblVendor() { return opened(m_vendor); } // + Address, CityStateZip
    Engine::Table &tblBank() { return opened(m_bank); }
    Engine::Table &tblItemType() { return opened(m_itemType); }
    Engine::Table &tblWarehse() { return opened(m_warehse); }
    Engine::Table &tblLogo() { return opened(m_logo); } // the host's

    QList<Engine::Table *> ownedTables() override; // as they are, opened or not

    // The lists that fields of records choose from, by their table: "Currency", "ItemType", "Warehse". Opened.
    LookupList list(QStringView table);

private:
    static Engine::Table &opened(Engine::Table &table);
    void describeCalculatedFields();

    Engine::Table m_tax;
    Engine::Table m_salesman;
    Engine::Table m_cusType;
    Engine::Table m_currency;
    Engine::Table m_item;
    Engine::Table m_customer;
    Engine::Table m_glAccnt;
    Engine::Table m_vendor;
    Engine::Table m_bank;
    Engine::Table m_itemType;
    Engine::Table m_warehse;
    Engine::Table m_logo;
};

} // namespace Tallymere
