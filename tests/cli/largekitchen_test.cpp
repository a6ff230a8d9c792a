#include "cli/largekitchen.h"
#include "cli/samplefiles.h"
#include "data/datamodule.h"
#include "engine/query.h"
#include "host/tables/hosttables.h"
#include "tests/support/teststore.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;

namespace {

class QuietPrompts final : public Tallymere::Prompts
{
public:
    void inform(const QString &) override { }
    void warn(const QString &) override { }
    void error(const QString &) override { }
    bool confirm(Tallymere::Question, const QString &) override { return false; }
    Tallymere::Answer yesNoCancel(const QString &) override { return Tallymere::Answer::Cancel; }
    bool retry(const QString &) override { return false; }
};

class NoProgress final : public Tallymere::Progress
{
public:
    void start(int) override { }
    void step() override { }
    void finish() override { }
};

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
        NoProgress progress;
        Tallymere::bringInSampleMasters(data, progress);
        Tallymere::LargeKitchen(data.databaseTallymere(), seed, {.items = 700, .historyRows = 20'000})
            .fill(progress);
    }

    qint64 number(const QString &sql) { return Engine::singleValue(m_store.database(), sql).toInt64(); }
    Engine::StatementPtr query(const QString &sql) { return m_store.database().connection().prepare(sql); }

    QStringList lines(const QString &sql)
    {
        QStringList all;
        const Engine::StatementPtr rows = query(sql);
        while (rows->next()) {
            QStringList fields;
            for (int i = 0; i < rows->columnCount(); ++i)
                fields.append(rows->valueAt(i, rows->columnType(i)).toText());
            all.append(fields.join(u'|'));
        }
        return all;
    }

private:
    TestStore m_store;
    Tallymere::MemorySettings m_settings;
    QuietPrompts m_prompts;
};

class LargeKitchen : public testing::TestWithParam<Store>
{
};

INSTANTIATE_TEST_SUITE_P(Cli, LargeKitchen, testing::Values(Store::Local, Store::Remote),
                         [](const auto &one) { return std::string(storeName(one.param)); });

const auto historyRows = u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity, UnitCost, "
                         "TransDescription, ReceiptID, UsageID, AdjustmentID FROM IHist ORDER BY IHistID"_s;
const auto balanceRows = u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID, WarehouseID"_s;

TEST_P(LargeKitchen, BalancesAndCostsFollowFromTheHistory)
{
    KitchenOf kitchen(GetParam(), 1);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IHist"_s), 20'000);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Item"_s), 700);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Warehse"_s), 10);

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

TEST_P(LargeKitchen, EveryHistoryRowHasItsDocumentLineAndNumbersGoOn)
{
    KitchenOf kitchen(GetParam(), 1);
    const std::pair<QString, QString> sources[] = {
        {u"SELECT count(*) FROM IReceipt R INNER JOIN IRecDet D ON D.ReceiptID = R.ReceiptID WHERE R.Posted = true"_s,
         u"SELECT count(*) FROM IHist H INNER JOIN IReceipt R ON R.ReceiptID = H.ReceiptID WHERE H.TransType = 3 "
         "AND R.WarehouseID = H.WarehouseID AND R.GLYear = H.GLYear AND R.GLPeriod = H.GLPeriod"_s},
        {u"SELECT count(*) FROM IUsage U INNER JOIN IUsageDet D ON D.UsageID = U.UsageID WHERE U.Posted = true"_s,
         u"SELECT count(*) FROM IHist H INNER JOIN IUsage U ON U.UsageID = H.UsageID WHERE H.TransType = 5 "
         "AND U.WarehouseID = H.WarehouseID AND U.GLYear = H.GLYear AND U.GLPeriod = H.GLPeriod"_s},
        {u"SELECT count(*) FROM IAdjust A INNER JOIN IAdjDet D ON D.AdjustmentID = A.AdjustmentID WHERE A.Posted = true"_s,
         u"SELECT count(*) FROM IHist H INNER JOIN IAdjust A ON A.AdjustmentID = H.AdjustmentID WHERE H.TransType "
         u"= 1 "
         "AND A.WarehouseID = H.WarehouseID"_s},
    };
    qint64 rows = 0;
    for (const auto &[documentLines, historyLines] : sources) {
        EXPECT_EQ(kitchen.number(documentLines), kitchen.number(historyLines)) << historyLines.toStdString();
        rows += kitchen.number(historyLines);
    }
    EXPECT_EQ(rows, 20'000);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IReceipt WHERE Posted = false"_s), 25);

    EXPECT_GT(kitchen.number(u"SELECT NextInvReceiptID FROM ItemCtl"_s),
              kitchen.number(u"SELECT max(ReceiptID) FROM IReceipt"_s));
    EXPECT_GT(kitchen.number(u"SELECT NextItemID FROM ItemCtl"_s),
              kitchen.number(u"SELECT max(ItemID) FROM Item"_s));
    EXPECT_GT(kitchen.number(u"SELECT NextInvoiceID FROM ARInvCtl"_s),
              kitchen.number(u"SELECT max(UsageID) FROM IUsage"_s));
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
