#include "tests/support/documents.h"
#include "transactions/documents/historyview.h"
#include "transactions/documents/waitingdocuments.h"
#include "transactions/kinds/adjustmententry.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

using DocumentKindsTest = DocumentTest;
ON_BOTH_STORES(DocumentKindsTest);

TEST_P(DocumentKindsTest, AreKnownWhereverDocumentsAre)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(kind->name.toStdString());
        const TransTypeInfo *type = transType(static_cast<int>(kind->posting.transType));
        ASSERT_TRUE(type);
        EXPECT_FALSE(type->filterText.isEmpty()) << "the history's filter offers it";
        EXPECT_NE(type->summary, TransTypeInfo::Summary::None) << "reports count it";

        open(*kind);
        beginDocument(*entry);
        entry->save();
        const std::vector<WaitingDocument> waiting = waitingDocuments(kitchen.database(), 1);
        ASSERT_EQ(waiting.size(), 1u) << "a count sees it";
        EXPECT_EQ(waiting.front().kind, kind);

        const double before = kitchen.onHand(1, 1);
        DocumentPosting posting(kitchen.database(), *kind);
        EXPECT_EQ(posting.count(), 1);
        EXPECT_TRUE(posting.run(prompts, progress));
        EXPECT_EQ(kitchen.onHand(1, 1), before + type->change(4));
        EXPECT_TRUE(waitingDocuments(kitchen.database(), 1).empty());

        HistoryView history(kitchen.database());
        history.open();
        history.table().setFilter(HistoryView::filterExpression({.type = static_cast<int>(type->type)}));
        history.table().setFiltered(true);
        ASSERT_EQ(history.table().recordCount(), 1);
        EXPECT_EQ(history.document().kind, kind) << "a row of the history leads back to it";
        EXPECT_LE(history.table().text(u"TransDescription").size(),
                  history.table().field(u"TransDescription").size);
    }
}

TEST_P(DocumentKindsTest, AdjustmentsAreEnteredCheckedAndPostedWithTheirSign)
{
    kitchen.execute(
        u"UPDATE ItemType SET Inventory = false; INSERT INTO ItemCtl (NextInvAdjustmentID) VALUES (7)"_s);
    kitchen.setStock(1, 1, 3, 2.5);
    kitchen.session().clock = [] { return QDate(2026, 3, 14).startOfDay(); };
    open(DocumentKinds::adjustment());
    EXPECT_EQ(refusalOf([&] { entry->save(); }), u"Location no longer exists -> WarehouseID"_s);
    entry->header().set(u"WarehouseID", 1);
    EXPECT_EQ(refusalOf([&] { entry->save(); }), u"Quantities have not been entered -> Lines"_s);
    for (const auto &[item, quantity] : {std::pair{1, -2.0}, {3, 5.0}, {1, -4.5}}) {
        enterLine(*entry, item, quantity);
        entry->lines().post();
    }
    EXPECT_EQ(refusalOf([&] { entry->save(); }), u"Field 'Description' must have a value -> AdjDescription"_s);
    entry->header().set(u"AdjDescription", u"Spoiled"_s);
    entry->header().set(u"AdjDate", {});
    static_cast<AdjustmentEntry &>(*entry).stepDate(1);
    entry->save();
    entry->close();

    EXPECT_TRUE(post(DocumentKinds::adjustment()));
    EXPECT_EQ(
        kitchen.found(u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
                      "TransDescription, AdjustmentID FROM IHist ORDER BY IHistID"_s),
        u"1|1|2026|3|1|2026-03-15|-2||Spoiled|7 3|1|2026|3|1|2026-03-15|5||Spoiled|7 "
        u"1|1|2026|3|1|2026-03-15|-4.5||Spoiled|7");
    EXPECT_EQ(kitchen.balances(), u"1|1|-3.5 3|1|5");
    EXPECT_EQ(kitchen.averageCost(1), 2.5);
    EXPECT_FALSE(post(DocumentKinds::adjustment()));
}

} // namespace
