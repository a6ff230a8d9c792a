#include "tests/transactions/documents.h"
#include "transactions/documentposting.h"

#include <map>
#include <optional>
#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Apples and bread are stocked, apricots are not, the type of yeast is gone.
class UsagePosting : public KitchenTest
{
protected:
    UsagePosting()
    {
        kitchen.execute(
            u"UPDATE ItemType SET Inventory = (ItemTypeID = 1); UPDATE Item SET ItemTypeID = 9 WHERE ItemID = 4"_s);
    }
    void addUsage(int id, int warehouse, const QList<DocumentLine> &lines)
    {
        addDocument(kitchen, DocumentKinds::usage(), id, warehouse, lines);
    }
    bool post() { return DocumentPosting(kitchen.database(), DocumentKinds::usage()).run(prompts, progress); }
    QStringList balances()
    {
        return kitchen.rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY 1, 2"_s);
    }
};
ON_BOTH_STORES(UsagePosting);

TEST_P(UsagePosting, TakesStockedItemsOutOfTheLocationAndLeavesTheirCost)
{
    kitchen.setStock(1, 2, 6, 2.00);
    addUsage(7, 2, {{1, u"4"_s, u"1.2345"_s}, {3, u"5"_s}, {1, u"-1"_s}, {99, u"8"_s}, {4, u"2"_s}, {2, u"3"_s}});
    addUsage(8, 1, {{3, u"5"_s}}); // nothing of it is stocked
    addUsage(9, 1, {{1, u"-0.0"_s}, {2, u"NULL"_s}});
    EXPECT_EQ(DocumentPosting(kitchen.database(), DocumentKinds::usage()).countText(),
              u"3 usage record(s) to be posted");

    EXPECT_TRUE(post());

    EXPECT_EQ(kitchen.rows(
                  u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
                  "TransDescription, ReceiptID, AdjustmentID, ARInvoiceID, UsageID FROM IHist ORDER BY IHistID"_s),
              (QStringList{u"1|2|2026|3|5|2026-03-14|4|1.2345|Inventory Usage No: 10007||||7"_s,
                           u"1|2|2026|3|5|2026-03-14|-1||Inventory Usage No: 10007||||7"_s,
                           u"2|2|2026|3|5|2026-03-14|3||Inventory Usage No: 10007||||7"_s,
                           u"1|1|2026|3|5|2026-03-14|0||Inventory Usage No: 10009||||9"_s,
                           u"2|1|2026|3|5|2026-03-14|0||Inventory Usage No: 10009||||9"_s}));
    EXPECT_EQ(balances(), (QStringList{u"1|1|0"_s, u"1|2|3"_s, u"2|1|0"_s, u"2|2|-3"_s}));
    EXPECT_EQ(kitchen.averageCost(1), 2.00);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IUsage WHERE Posted = true"_s), 3);
    EXPECT_FALSE(post());
}

// The books as a plain program would keep them, over several runs of usage and adjustments. The seed is told when they
// differ.
TEST_P(UsagePosting, AgreesWithAPlainComputationOnRandomDocuments)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&random](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    std::map<std::pair<int, int>, double> onHand;
    QStringList used, adjusted;
    struct Change
    {
        bool adjusts;
        std::pair<int, int> place;
        double quantity;
    };
    std::vector<Change> pending;
    kitchen.setStock(1, 1, 5.3, 2);
    onHand[{1, 1}] = 5.3;
    int document = 0;
    for (int run = 0; run < 3; ++run) {
        for (int i = below(90); i >= 0; --i) {
            const bool adjusts = below(2);
            const int warehouse = 1 + below(2);
            QList<DocumentLine> lines;
            ++document;
            for (int j = below(8); j > 0; --j) {
                const int item = adjusts ? 1 + below(5) : below(6); // none, stocked or not, without type, gone
                const double quantity = 0.01 * (below(2001) - 1000);
                const std::optional<double> cost =
                    below(3) ? std::optional(0.00005 * below(100'000)) : std::nullopt;
                lines.append(
                    {item, QString::number(quantity, 'g', 17), cost ? QString::number(*cost, 'g', 17) : u"NULL"_s});
                if (!adjusts && item != 1 && item != 2)
                    continue;
                const QString row =
                    u"%1|%2|%3|%4|"_s.arg(document).arg(item).arg(warehouse).arg(Engine::Value(quantity).toText());
                (adjusts ? adjusted : used) << row
                        + (cost && !adjusts ? Engine::Value(Engine::Money::fromDouble(*cost)).toText() : QString());
                pending.push_back({adjusts, {item, warehouse}, adjusts ? quantity : -quantity});
            }
            addDocument(kitchen, adjusts ? DocumentKinds::adjustment() : DocumentKinds::usage(), document,
                        warehouse, lines);
        }
        post();
        DocumentPosting(kitchen.database(), DocumentKinds::adjustment()).run(prompts, progress);
        for (const bool adjusts : {false, true})
            for (const Change &change : pending)
                if (change.adjusts == adjusts)
                    onHand[change.place] += change.quantity;
        pending.clear();
    }
    const auto history = [&](const QString &key) {
        return kitchen.rows(
            u"SELECT %1, ItemID, WarehouseID, Quantity, UnitCost FROM IHist WHERE %1 > 0 ORDER BY IHistID"_s.arg(
                key));
    };
    EXPECT_EQ(history(u"UsageID"_s), used);
    EXPECT_EQ(history(u"AdjustmentID"_s), adjusted);
    QStringList expected;
    for (const auto &[place, quantity] : onHand)
        expected << u"%1|%2|%3"_s.arg(place.first).arg(place.second).arg(Engine::Value(quantity).toText());
    EXPECT_EQ(balances(), expected);
}

} // namespace
