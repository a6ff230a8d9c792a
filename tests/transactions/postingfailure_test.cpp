#include "tests/support/brokentable.h"
#include "tests/support/failures.h"
#include "tests/support/kitchen.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::EngineError;

namespace {

// Three receipts of three lines each, all of item 1 at location 1 with quantities 1, 2, 4, 8 ... so that the
// balance tells which lines have been applied. The second receipt's second line (quantity 16) is the one that
// fails.
class FailingPosting : public testing::TestWithParam<Store>
{
protected:
    FailingPosting()
    {
        for (int id = 1; id <= 3; ++id) {
            QList<Kitchen::Line> lines;
            for (int i = 0; i < 3; ++i)
                lines.append({1, static_cast<double>(1 << ((id - 1) * 3 + i)), 1.00});
            kitchen.addReceipt(id, 1, 1, lines);
        }
    }

    void post()
    {
        SpokenPrompts prompts;
        CountedProgress progress;
        DocumentPosting(kitchen.database(), DocumentKinds::receipt()).run(prompts, progress);
    }
    QString posted()
    {
        return kitchen.rows(u"SELECT ReceiptID FROM IReceipt WHERE Posted = true ORDER BY 1"_s).join(u',');
    }
    QString history() { return kitchen.rows(u"SELECT Quantity FROM IHist ORDER BY IHistID"_s).join(u','); }
    Kitchen kitchen{GetParam()};
};
ON_BOTH_STORES(FailingPosting);

struct FailureCase
{
    const char *name;
    QString event;
    QString table;
    QString condition;
    QString posted; // afterwards
    QString history;
    double onHand;
};

TEST_P(FailingPosting, KeepsWhatWasWrittenBeforeTheFailingStatement)
{
    const QList<FailureCase> cases = {
        {"marking", u"UPDATE"_s, u"IReceipt"_s, u"NEW.ReceiptID = 2"_s, u"1"_s, u"1,2,4"_s, 7},
        {"history", u"INSERT"_s, u"IHist"_s, u"NEW.Quantity = 16"_s, u"1,2"_s, u"1,2,4,8"_s, 15},
        {"balance", u"UPDATE"_s, u"IBalance"_s, u"NEW.QtyOnHand = 31"_s, u"1,2"_s, u"1,2,4,8,16"_s, 15},
        {"first balance", u"INSERT"_s, u"IBalance"_s, u"NEW.QtyOnHand = 1"_s, u"1"_s, u"1"_s, 0},
    };
    for (const FailureCase &c : cases) {
        SCOPED_TRACE(c.name);
        kitchen.execute(u"DELETE FROM IBalance; DELETE FROM IHist; UPDATE IReceipt SET Posted = false"_s);
        const BrokenTable broken(kitchen, c.event, c.table, c.condition);

        EXPECT_THROW(post(), EngineError);

        EXPECT_EQ(posted(), c.posted);
        EXPECT_EQ(history(), c.history);
        EXPECT_EQ(kitchen.onHand(1, 1), c.onHand);
        EXPECT_FALSE(kitchen.database().connection().inTransaction());
        kitchen.expectNoLocks();
    }
}

TEST_P(FailingPosting, StopsUsageAndAdjustmentsInTheSameOrder)
{
    kitchen.execute(u"UPDATE ItemType SET Inventory = true"_s);
    for (const DocumentKind *kind : {&DocumentKinds::usage(), &DocumentKinds::adjustment()}) {
        const int sign = kind == &DocumentKinds::usage() ? -1 : 1;
        for (int id = 1; id <= 3; ++id) {
            kitchen.execute(u"INSERT INTO %1 (%2, WarehouseID, GLYear, GLPeriod, %3, Posted) "
                            "VALUES (%4, 1, 2026, 3, '2026-03-14', false)"_s.arg(
                                kind->headerTable, kind->keyField, kind->dateField, QString::number(id)));
            for (int i = 0; i < 3; ++i)
                kitchen.execute(u"INSERT INTO %1 (%2, Seq, ItemID, Quantity) VALUES (%3, %4, 1, %5)"_s.arg(
                    kind->lineTable, kind->keyField, QString::number(id), QString::number(i + 1),
                    QString::number(1 << ((id - 1) * 3 + i))));
        }
        const QList<FailureCase> cases = {
            {"marking", u"UPDATE"_s, kind->headerTable, u"NEW.%1 = 2"_s.arg(kind->keyField), u"1"_s, u"1,2,4"_s, 7},
            {"history", u"INSERT"_s, u"IHist"_s, u"NEW.Quantity = 16"_s, u"1,2"_s, u"1,2,4,8"_s, 15},
            {"balance", u"UPDATE"_s, u"IBalance"_s, u"NEW.QtyOnHand = %1"_s.arg(31 * sign), u"1,2"_s,
             u"1,2,4,8,16"_s, 15},
        };
        for (const FailureCase &c : cases) {
            SCOPED_TRACE(kind->name.toStdString() + ' ' + c.name);
            kitchen.execute(
                u"DELETE FROM IBalance; DELETE FROM IHist; UPDATE %1 SET Posted = false"_s.arg(kind->headerTable));
            const BrokenTable broken(kitchen, c.event, c.table, c.condition);
            SpokenPrompts prompts;
            CountedProgress progress;
            EXPECT_THROW(DocumentPosting(kitchen.database(), *kind).run(prompts, progress), EngineError);
            EXPECT_EQ(kitchen
                          .rows(u"SELECT %1 FROM %2 WHERE Posted = true ORDER BY 1"_s.arg(kind->keyField,
                                                                                          kind->headerTable))
                          .join(u','),
                      c.posted);
            EXPECT_EQ(history(), c.history);
            EXPECT_EQ(kitchen.onHand(1, 1), sign * c.onHand);
        }
        kitchen.expectNoLocks();
    }
}

TEST_P(FailingPosting, OverflowOfAnAmountStopsAtItsLine)
{
    kitchen.execute(u"UPDATE IRecDet SET UnitCost = 1e18 WHERE ReceiptID = 2 AND Seq = 3"_s);
    EXPECT_EQ(refusalOf([&] { post(); }), u"\"Receipt: 1002\" has an amount that is too large. -> ");
    EXPECT_EQ(posted(), u"1,2");
    EXPECT_EQ(history(), u"1,2,4,8,16");
    EXPECT_EQ(kitchen.onHand(1, 1), 31);
    kitchen.expectNoLocks();
}

TEST_P(FailingPosting, ABalanceNeverBecomesInfinite)
{
    kitchen.execute(u"UPDATE IRecDet SET QtyReceived = 1e308, UnitCost = 0 WHERE ReceiptID = 2"_s);
    EXPECT_THROW(post(), RuleError);
    EXPECT_EQ(posted(), u"1,2");
    EXPECT_EQ(kitchen.onHand(1, 1), 1e308);
    kitchen.expectNoLocks();
}

// The file store undoes a whole transaction by itself when the disk is full: the last group is the state.
TEST(FailingPostingLocal, AFullDiskLeavesWholeDocumentsAndTheRestIsPostedOnceThereIsRoom)
{
    Kitchen kitchen(Store::Local);
    for (int id = 1; id <= 2; ++id)
        kitchen.addReceipt(id, 1, 1, QList<Kitchen::Line>(300, {1, 1, 1}));
    const auto post = [&] {
        SpokenPrompts prompts;
        CountedProgress progress;
        DocumentPosting(kitchen.database(), DocumentKinds::receipt()).run(prompts, progress);
    };
    kitchen.execute(u"PRAGMA max_page_count = 1"_s); // no smaller than the file is
    EXPECT_EQ(errorOf(post), Engine::ErrorCode::DiskFull);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IHist"_s),
              300 * kitchen.number(u"SELECT count(*) FROM IReceipt WHERE Posted = true"_s));
    kitchen.expectNoLocks();
    kitchen.execute(u"PRAGMA max_page_count = 1000000"_s);
    post();
    EXPECT_EQ(kitchen.onHand(1, 1), 600);
}

} // namespace
