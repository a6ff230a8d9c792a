#include "tests/support/chance.h"
#include "tests/support/documents.h"
#include "transactions/stockcount.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct StockHistory : KitchenTest
{
    StockHistory() { kitchen.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = ItemTypeID"_s); }

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    void count()
    {
        StockCount count(kitchen.database(), prompts);
        count.setDate({2026, 3, 14});
        if (!count.open(1 + below(2), ZeroCounts::Excluded))
            return;
        for (int row = 0; row < count.list().size(); ++row)
            if (below(2))
                count.count(row, 0.25 * below(60));
        count.calculate();
    }

    void step()
    {
        const QList<const DocumentKind *> &kinds = DocumentKinds::all();
        const DocumentKind &kind = *kinds.at(below(static_cast<int>(kinds.size())));
        switch (below(4)) {
        case 0:
            DocumentPosting(kitchen.database(), kind).run(prompts, progress);
            break;
        case 1:
            count();
            break;
        default:
            addRandomDocument(kitchen, kind, ++documents, 1 + below(6), random);
        }
    }

    // Of what is not zero.
    QStringList balances()
    {
        return kitchen.rows(
            u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance WHERE QtyOnHand <> 0 ORDER BY 1, 2"_s);
    }
    QStringList sums()
    {
        return kitchen.rows(
            u"SELECT * FROM (SELECT ItemID, WarehouseID, sum(CASE WHEN TransType IN (2, 5) THEN -Quantity "
            "ELSE Quantity END) AS Total FROM IHist GROUP BY 1, 2) S WHERE Total <> 0 ORDER BY 1, 2"_s);
    }

    std::mt19937 random;
    int documents = 0;
};
ON_BOTH_STORES(StockHistory);

TEST_P(StockHistory, AddsUpToTheBalancesAfterAnySteps)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    random.seed(seed);
    for (int i = 0; i < 60; ++i) {
        ASSERT_NO_FATAL_FAILURE(step());
        ASSERT_EQ(sums(), balances()) << "step " << i;
    }
    postAll(kitchen);
    EXPECT_EQ(sums(), balances());
    EXPECT_FALSE(balances().isEmpty());
}

} // namespace
