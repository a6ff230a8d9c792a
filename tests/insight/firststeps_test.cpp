#include "insight/firststeps.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct FirstStepsTest : KitchenTest
{
    // A letter for each step: period, locations, types, items, vendors, count; large when it is done.
    QString steps()
    {
        QString told = u"pltivc"_s;
        const QList<FirstStepState> states = readFirstSteps(kitchen.database());
        for (qsizetype step = 0; step < states.size(); ++step)
            if (states[step].isDone)
                told[step] = told[step].toUpper();
        return told;
    }
    FirstStepState count() { return readFirstSteps(kitchen.database()).constLast(); }
};

} // namespace

ON_BOTH_STORES(FirstStepsTest);

TEST_P(FirstStepsTest, AreDoneAsTheBooksTellAndUndoneLikewise)
{
    kitchen.execute(u"DELETE FROM Vendor; DELETE FROM Item; DELETE FROM ItemType; DELETE FROM IBalance; "
                    "DELETE FROM Warehse WHERE WarehouseID > 1; UPDATE Company SET DefaultPeriodPP = NULL"_s);
    EXPECT_EQ(steps(), u"pltivc"_s) << "a year and a location are there from the start";
    const std::pair<QString, QString> deeds[] = {
        {u"UPDATE Company SET DefaultPeriodPP = 3"_s, u"Pltivc"_s},
        {u"UPDATE Company SET FiscalYear = 2027"_s, u"pltivc"_s}, // no document would be taken
        {u"UPDATE Company SET FiscalYear = 2026"_s, u"Pltivc"_s},
        {u"UPDATE Warehse SET WarehouseName = 'Store room'"_s, u"PLtivc"_s},
        {u"UPDATE Warehse SET WarehouseName = 'Office'; "
         "INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (2, 'Freezer')"_s,
         u"PLtivc"_s},
        {u"INSERT INTO ItemType (ItemTypeID, TypeName, Inventory) VALUES (1, 'Services', false)"_s, u"PLtivc"_s},
        {u"UPDATE ItemType SET Inventory = true"_s, u"PLTivc"_s},
        {u"INSERT INTO Item (ItemID, ItemNo, ItemTypeID) VALUES (1, 'A1', 1)"_s, u"PLTIvc"_s},
        {u"INSERT INTO Vendor (VendorID, VendorNo) VALUES (1, '7')"_s, u"PLTIVc"_s},
        {u"DELETE FROM Item"_s, u"PLTiVc"_s}};
    for (const auto &[deed, told] : deeds) {
        kitchen.execute(deed);
        EXPECT_EQ(steps(), told) << qPrintable(deed);
    }

    EXPECT_EQ(count().screen, QString());
    kitchen.addReceipt(1, 1, 1, {{1, 4, 2}});
    EXPECT_FALSE(count().isDone);
    EXPECT_EQ(count().screen, u"frmInvReceiptsPost"_s);
    kitchen.execute(u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity) "
                    "VALUES (1, 1, 2026, 3, 5, -4)"_s);
    EXPECT_EQ(steps(), u"PLTiVC"_s);
    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = NULL"_s);
    EXPECT_TRUE(readFirstSteps(kitchen.database()).constFirst().isDone) << "they go by the calendar";
}
