#include "tests/support/kitchen.h"
#include "tests/support/otheruser.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Processes : public testing::TestWithParam<Store>
{
};
ON_BOTH_STORES(Processes);

int receipts(Store store) { return store == Store::Local ? 2400 : 600; }
constexpr int LinesEach = 10;

void addManyReceipts(Kitchen &kitchen)
{
    std::mt19937 random(7);
    const auto upTo = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    Engine::Connection &connection = kitchen.database().connection();
    connection.begin();
    for (int id = 1; id <= receipts(kitchen.store()); ++id) {
        QList<Kitchen::Line> lines;
        for (int i = 0; i < LinesEach; ++i)
            lines.append({1 + upTo(3), 1.0 + upTo(9), 0.01 * (1 + upTo(500))});
        kitchen.addReceipt(id, 1 + upTo(2), 1 + upTo(2), lines);
    }
    connection.commit();
}

QStringList stock(Kitchen &kitchen)
{
    return kitchen.rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY 1, 2"_s)
        + kitchen.rows(u"SELECT ItemID, WgtAvgCost FROM Item ORDER BY 1"_s);
}

double postedReceipts(Kitchen &kitchen)
{
    return kitchen.number(u"SELECT count(*) FROM IReceipt WHERE Posted = true"_s);
}

// Every receipt has all of its lines in the history or none, as its flag says, and the balances say the same.
void expectWholeDocuments(Kitchen &kitchen)
{
    EXPECT_EQ(
        kitchen.rows(u"SELECT I.ReceiptID FROM IReceipt I LEFT OUTER JOIN (SELECT ReceiptID, count(*) AS Lines "
                     "FROM IHist GROUP BY ReceiptID) H ON I.ReceiptID = H.ReceiptID "
                     "WHERE coalesce(Lines, 0) <> CASE WHEN I.Posted = true THEN %1 ELSE 0 END"_s.arg(LinesEach)),
        QStringList());
    EXPECT_EQ(kitchen.rows(u"SELECT ItemID, WarehouseID, sum(Quantity) FROM IHist GROUP BY 1, 2 ORDER BY 1, 2"_s),
              kitchen.rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY 1, 2"_s));
}

TEST_P(Processes, KillingAPosterLeavesWholeDocumentsAndNothingIsLostOrDoubled)
{
    Kitchen kitchen(GetParam());
    addManyReceipts(kitchen);
    Kitchen undisturbed(GetParam());
    addManyReceipts(undisturbed);
    SpokenPrompts prompts;
    CountedProgress progress;
    ASSERT_TRUE(DocumentPosting(undisturbed.database(), DocumentKinds::receipt()).run(prompts, progress));

    // First between two statements, where the poster waits for it; then wherever it has come to meanwhile.
    std::mt19937 random(11);
    for (const QString &then : {u"wait"_s, u"wait"_s, u"wait"_s, u"go on"_s, u"go on"_s, u"go on"_s}) {
        const auto steps = 1 + static_cast<int>(random() % static_cast<unsigned>(receipts(GetParam()) / 20));
        const double before = postedReceipts(kitchen);
        OtherUser poster(kitchen, {u"post"_s, QString::number(steps), then});
        EXPECT_TRUE(poster.saysLine() || then == "go on"_L1);
        poster.kill();
        kitchen.expectNoLocks();
        expectWholeDocuments(kitchen);
        if (then == "wait"_L1) { // where each document is a group
            EXPECT_EQ(postedReceipts(kitchen), before + steps);
        }
    }

    OtherUser poster(kitchen, {u"post"_s});
    EXPECT_TRUE(poster.finish());

    expectWholeDocuments(kitchen);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IHist"_s), receipts(GetParam()) * LinesEach);
    EXPECT_EQ(stock(kitchen), stock(undisturbed));
}

} // namespace
