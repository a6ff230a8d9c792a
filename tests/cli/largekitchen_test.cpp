#include "data/datamodule.h"
#include "engine/query.h"
#include "host/sample/largekitchen.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "tests/support/bothstores.h"
#include "tests/support/spokenprompts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;

namespace {

// A large kitchen, only smaller.
class KitchenOf
{
public:
    KitchenOf(Store store, std::uint64_t seed)
        : m_store(store)
    {
        Tallymere::DataModuleOptions options;
        options.dataFolder = store == Store::Local ? m_store.directory() : QString();
        options.server = store == Store::Remote ? u"127.0.0.1"_s : QString();
        options.serverDatabase = m_store.remoteName();
        options.prepareHost = [](Engine::Database &database) {
            Tallymere::HostTables::createHostTables(database, u"Kitchen"_s, u"USA"_s);
        };
        Tallymere::TDataModuleTallymere data(m_settings, m_prompts, options);
        CountedProgress progress;
        Tallymere::bringInSampleMasters(data, progress);
        Tallymere::LargeKitchen(data.databaseTallymere(), seed, {.items = 700, .historyRows = 20'000})
            .fill(progress);
    }

    qint64 number(const QString &sql) { return Engine::singleValue(m_store.database(), sql).toInt64(); }
    Engine::StatementPtr query(const QString &sql) { return m_store.database().connection().prepare(sql); }

    QStringList lines(const QString &sql) { return m_store.rows(sql); }

private:
    TestStore m_store;
    Tallymere::MemorySettings m_settings;
    SpokenPrompts m_prompts;
};

class LargeKitchen : public testing::TestWithParam<Store>
{
};

ON_BOTH_STORES(LargeKitchen);

const auto historyRows = u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity, UnitCost, "
                         "TransDescription, ReceiptID, UsageID, AdjustmentID FROM IHist ORDER BY IHistID"_s;
const auto balanceRows = u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID, WarehouseID"_s;

TEST_P(LargeKitchen, BalancesAndCostsFollowFromTheHistory)
{
    KitchenOf kitchen(GetParam(), 1);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IHist"_s), 20'000);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Item"_s), 700);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Warehse"_s), 10);

    const std::tuple<QString, QString, QString> counters[] = {
        {u"NextInvReceiptID FROM ItemCtl"_s, u"ReceiptID"_s, u"IReceipt"_s},
        {u"NextItemID FROM ItemCtl"_s, u"ItemID"_s, u"Item"_s},
        {u"NextInvoiceID FROM ARInvCtl"_s, u"UsageID"_s, u"IUsage"_s}};
    for (const auto &[next, key, table] : counters)
        EXPECT_GT(kitchen.number("SELECT "_L1 + next), kitchen.number(u"SELECT max(%1) FROM %2"_s.arg(key, table)));

    std::map<std::pair<qint64, qint64>, double> balances;
    std::map<qint64, double> onHand;
    std::map<qint64, double> costs;
    const Engine::StatementPtr history = kitchen.query(historyRows);
    while (history->next()) {
        const qint64 item = history->intAt(0);
        const qint64 type = history->intAt(4);
        const double quantity = type == 5 ? -history->doubleAt(5) : history->doubleAt(5);
        if (type == 3) {
            const double before = onHand[item] > 0 ? onHand[item] * costs[item] : 0;
            const double cost = (quantity * history->doubleAt(6) + before) / (quantity + onHand[item]);
            costs[item] = std::floor(cost * 100 + 0.5 + 1e-7) / 100;
        }
        onHand[item] += quantity;
        balances[{item, history->intAt(1)}] += quantity;
    }
    const Engine::StatementPtr stored = kitchen.query(balanceRows);
    size_t count = 0;
    for (; stored->next(); ++count)
        ASSERT_EQ(stored->doubleAt(2), (balances[{stored->intAt(0), stored->intAt(1)}]));
    EXPECT_EQ(count, balances.size());
    const Engine::StatementPtr items = kitchen.query(u"SELECT ItemID, WgtAvgCost FROM Item"_s);
    while (items->next())
        ASSERT_NEAR(items->doubleAt(1), costs[items->intAt(0)], 1e-9) << "item " << items->intAt(0);
}

TEST(LargeKitchenSeed, TheSameSeedGivesTheSameRowsInBothStoresAndAnotherGivesOthers)
{
    KitchenOf local(Store::Local, 7);
    KitchenOf remote(Store::Remote, 7);
    KitchenOf other(Store::Local, 8);
    for (const QString &sql : {historyRows, balanceRows}) {
        EXPECT_EQ(local.lines(sql), remote.lines(sql));
        EXPECT_NE(local.lines(sql), other.lines(sql));
    }
}

} // namespace
