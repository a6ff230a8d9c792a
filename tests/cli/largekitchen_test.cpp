#include "data/datamodule.h"
#include "host/sample/largekitchen.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "tests/support/bothstores.h"
#include "tests/support/spokenprompts.h"

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

    QStringList lines(const QString &sql) { return m_store.rows(sql); }

private:
    TestStore m_store;
    Tallymere::MemorySettings m_settings;
    SpokenPrompts m_prompts;
};

const auto historyRows = u"SELECT ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity, UnitCost, "
                         "TransDescription, ReceiptID, UsageID, AdjustmentID FROM IHist ORDER BY IHistID"_s;
const auto balanceRows = u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID, WarehouseID"_s;

TEST(LargeKitchenSeed, TheSameSeedGivesTheSameRowsInBothStoresAndAnotherGivesOthers)
{
    KitchenOf local(Store::Local, 7);
    KitchenOf remote(Store::Remote, 7);
    KitchenOf other(Store::Local, 8);
    EXPECT_EQ(local.lines(u"SELECT count(*) FROM IHist"_s), QStringList(u"20000"_s));
    for (const QString &sql : {historyRows, balanceRows}) {
        EXPECT_EQ(local.lines(sql), remote.lines(sql));
        EXPECT_NE(local.lines(sql), other.lines(sql));
    }
}

} // namespace
