#include "data/lookupsdatainv.h"

#include "data/layouts.h"
#include "host/tables/hosttables.h"
#include "tests/support/bothstores.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

struct Lookups : testing::TestWithParam<Store>
{
    Lookups()
    {
        for (const Engine::TableLayout *layout : Layouts::applied())
            store.database().createTable(*layout);
    }

    TestStore store{GetParam()};
};

TEST_P(Lookups, HostTablesAreMissedOnlyWhereTheyAreNeeded)
{
    TdmLookUpsInv lookups(store.database());
    EXPECT_EQ(std::ranges::count_if(lookups.ownedTables(), &QString::isEmpty, &Engine::TableReader::index), 1)
        << "all but the logo have an order";
    EXPECT_TRUE(lookups.tblVendor().isEmpty());
    EXPECT_THROW(lookups.tblCustomer(), Engine::EngineError);

    HostTables::createHostTables(store.database(), u"Riverside Meals"_s, u"USA"_s);
    EXPECT_TRUE(lookups.tblCustomer().isEmpty() && lookups.tblCusType().isEmpty() && lookups.tblLogo().isEmpty());
}

TEST_P(Lookups, CalculatedFieldsLeaveOutWhatIsMissing)
{
    HostTables::createHostTables(store.database(), u"Riverside Meals"_s, u"USA"_s);
    store.execute(u"INSERT INTO Salesman (SalesmanID, LastName, FirstName) VALUES (1, 'Ash', 'Kim'), (2, 'Birch', "
                  "NULL), (3, 'Cedar', '')"_s);
    store.execute(u"INSERT INTO GLAccnt (GLAccountID, AccountName) VALUES (1, 'Food in stock')"_s);
    store.execute(u"INSERT INTO Vendor (VendorID, VendorName, AddressLine1, City, StateProv, ZipCode, Country) "
                  "VALUES (1, 'Acme', ' 12 Mill Lane', 'Springfield', 'IL', '62701', 'USA'), "
                  "(2, 'Beta', NULL, NULL, ' ', NULL, '')"_s);
    store.execute(
        u"INSERT INTO Customer (CustomerID, CustomerName, AddressLine1, ShipToAddressLine1, ShipToCity) VALUES "
        "(1, 'Home', '%1', '3 Quay', 'Leeds')"_s,
        QString(35, u'a'));

    TdmLookUpsInv lookups(store.database());
    QStringList people;
    for (Engine::TableReader &salesmen = lookups.tblSalesman(); !salesmen.atEnd(); salesmen.next())
        people << salesmen.text(u"FullName");
    EXPECT_EQ(people.join(u'|'), u"Kim Ash|Birch|Cedar"_s);
    EXPECT_EQ(lookups.tblGLAccnt().text(u"AccountName30"), u"Food in stock"_s);

    Engine::TableReader &vendors = lookups.tblVendor();
    EXPECT_EQ(vendors.text(u"Address"), u"12 Mill Lane, Springfield, IL, 62701, USA"_s);
    EXPECT_EQ(vendors.text(u"CityStateZip"), u"Springfield IL 62701"_s);
    vendors.next();
    EXPECT_EQ(vendors.text(u"Address"), u""_s);
    EXPECT_EQ(lookups.tblCustomer().text(u"Address"), QString(35, u'a'));
    EXPECT_EQ(lookups.tblCustomer().text(u"ShipToAddress"), u"3 Quay, Leeds"_s);
}

ON_BOTH_STORES(Lookups);
