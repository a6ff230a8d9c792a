#include "data/lookupsdatainv.h"

#include "data/fields.h"
#include "data/personname.h"
#include "data/texts.h"
#include "engine/values/error.h"
#include "engine/values/textsize.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using Engine::DataSet;
using Engine::FieldType;
using Engine::TableReader;
using Engine::Value;

namespace Tallymere {

namespace {

constexpr int addressSize = 100;

QString joinFilled(const QStringList &parts, const QString &separator)
{
    QStringList filled;
    for (const QString &part : parts) {
        if (const QString trimmed = part.trimmed(); !trimmed.isEmpty())
            filled << trimmed;
    }
    return filled.join(separator);
}

// "Springfield IL 62701"
QString place(const DataSet &row)
{
    return joinFilled({row.text(Fields::City), row.text(Fields::StateProv), row.text(Fields::ZipCode)}, u" "_s);
}

// "12 Mill Lane, Unit 4, Springfield, IL, 62701, USA". The prefix tells one address of a row from another. Cut to the
// field it is shown in.
QString addressLine(const DataSet &row, const QString &prefix)
{
    QStringList parts;
    for (const auto part :
         {"AddressLine1"_L1, "AddressLine2"_L1, "City"_L1, "StateProv"_L1, "ZipCode"_L1, "Country"_L1})
        parts << row.text(QString(prefix + part));
    return Engine::firstCharacters(joinFilled(parts, u", "_s), addressSize);
}

} // namespace

TdmLookUpsInv::TdmLookUpsInv(Engine::Database &database)
    : m_tax(database, u"Tax"_s)
    , m_salesman(database, u"Salesman"_s)
    , m_cusType(database, u"CusType"_s)
    , m_currency(database, u"Currency"_s)
    , m_item(database, u"Item"_s)
    , m_customer(database, u"Customer"_s)
    , m_glAccnt(database, u"GLAccnt"_s)
    , m_vendor(database, u"Vendor"_s)
    , m_bank(database, u"Bank"_s)
    , m_itemType(database, u"ItemType"_s)
    , m_warehse(database, u"Warehse"_s)
    , m_logo(database, u"Logo"_s)
{
    m_tax.setIndex(u"TaxName1"_s);
    m_salesman.setIndex(u"FullName"_s);
    m_cusType.setIndex(u"TypeName1"_s);
    m_currency.setIndex(u"CurrencyName1"_s);
    m_item.setIndex(u"ItemDescription1"_s);
    m_customer.setIndex(u"CustomerName1"_s);
    m_glAccnt.setIndex(u"AccountName1"_s);
    m_vendor.setIndex(u"VendorName1"_s);
    m_bank.setIndex(u"BankName1"_s);
    m_itemType.setIndex(u"TypeName1"_s);
    m_warehse.setIndex(u"WarehouseName1"_s);
    describeCalculatedFields();

    m_item.open();
    m_itemType.open();
}

QList<TableReader *> TdmLookUpsInv::ownedTables()
{
    return {&m_tax,     &m_salesman, &m_cusType, &m_currency, &m_item,    &m_customer,
            &m_glAccnt, &m_vendor,   &m_bank,    &m_itemType, &m_warehse, &m_logo};
}

void TdmLookUpsInv::describeCalculatedFields()
{
    m_salesman.addCalculated(Fields::FullName.sized(60), fullName);
    m_glAccnt.addCalculated({u"AccountName30"_s, FieldType::Text, 50},
                            [](const DataSet &row) { return row.value(Fields::AccountName); });
    m_customer.addCalculated({u"Address"_s, FieldType::Text, addressSize},
                             [](const DataSet &row) { return Value(addressLine(row, {})); });
    m_customer.addCalculated({u"ShipToAddress"_s, FieldType::Text, addressSize},
                             [](const DataSet &row) { return Value(addressLine(row, u"ShipTo"_s)); });
    m_vendor.addCalculated({u"Address"_s, FieldType::Text, addressSize},
                           [](const DataSet &row) { return Value(addressLine(row, {})); });
    m_vendor.addCalculated({u"CityStateZip"_s, FieldType::Text, 67},
                           [](const DataSet &row) { return Value(place(row)); });
}

LookupList TdmLookUpsInv::list(QStringView table)
{
    if (table == u"Currency")
        return {tblCurrency(), Fields::CurrencyName, DataTexts::tr("Currency")};
    if (table == u"ItemType")
        return {tblItemType(), Fields::TypeName, DataTexts::tr("Item Type")};
    if (table == u"Warehse")
        return {tblWarehse(), Fields::WarehouseName, DataTexts::tr("Location")};
    Engine::raise(Engine::ErrorCode::NoSuchTable, DataTexts::tr("There is no list '%1' to choose from").arg(table));
}

TableReader &TdmLookUpsInv::opened(TableReader &table)
{
    table.open();
    return table;
}

} // namespace Tallymere
