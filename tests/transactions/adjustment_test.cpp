#include "tests/support/kitchen.h"
#include "transactions/adjustmententry.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

using Adjustments = KitchenTest;
ON_BOTH_STORES(Adjustments);

TEST_P(Adjustments, AreEnteredCheckedAndPostedWithTheirSign)
{
    kitchen.execute(
        u"UPDATE ItemType SET Inventory = false; INSERT INTO ItemCtl (NextInvAdjustmentID) VALUES (7)"_s);
    kitchen.setStock(1, 1, 3, 2.5);
    AdjustmentEntry entry(kitchen.database(), prompts);
    kitchen.session().clock = [] { return QDate(2026, 3, 14).startOfDay(); };
    entry.open();
    entry.newDocument();
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"Location no longer exists -> WarehouseID"_s);
    entry.header().set(u"WarehouseID", 1);
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"Quantities have not been entered -> Lines"_s);
    for (const auto &[item, quantity] : {std::pair{1, -2.0}, {3, 5.0}, {1, -4.5}}) {
        entry.newLine();
        entry.lines().set(u"Quantity", quantity);
        entry.chooseItem(item);
        entry.lines().post();
    }
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"Field 'Description' must have a value -> AdjDescription"_s);
    entry.header().set(u"AdjDescription", u"Spoiled"_s);
    entry.header().set(u"AdjDate", {});
    entry.stepDate(1);
    entry.save();
    entry.close();

    EXPECT_TRUE(DocumentPosting(kitchen.database(), DocumentKinds::adjustment()).run(prompts, progress));
    EXPECT_EQ(
        kitchen.found(u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
                      "TransDescription, AdjustmentID FROM IHist ORDER BY IHistID"_s),
        u"1|1|2026|3|1|2026-03-15|-2||Spoiled|7 3|1|2026|3|1|2026-03-15|5||Spoiled|7 "
        u"1|1|2026|3|1|2026-03-15|-4.5||Spoiled|7");
    EXPECT_EQ(kitchen.balances(), u"1|1|-3.5 3|1|5");
    EXPECT_EQ(kitchen.averageCost(1), 2.5);
    EXPECT_FALSE(DocumentPosting(kitchen.database(), DocumentKinds::adjustment()).run(prompts, progress));
}

} // namespace
