// Synchronization of 100,000 host items (all new, all unchanged, all changed) against two statements that write the
// same rows: an UPDATE and an INSERT of a SELECT. Prints the ratios of the medians.
// Usage: bench_sync [local|remote] [ROUNDS]

#include "bench/benchdata.h"
#include "engine/records/query.h"
#include "host/tables/hosttables.h"
#include "master/itemsync.h"
#include "tests/support/spokenprompts.h"

#include <array>
#include <cstdio>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int hostItems = 100'000;

struct Scenario
{
    const char *name;
    const char *before; // what the host does
};

constexpr std::array scenarios{
    Scenario{
        "all new",
        "INSERT INTO Items WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) "
        "SELECT i, 'Meal ' || i, i % 500 * 0.25, CASE i % 3 WHEN 0 THEN 'B' WHEN 1 THEN 'MF' ELSE 'O' END FROM n"},
    Scenario{"all unchanged", ""},
    Scenario{"all changed", "UPDATE Items SET Meal_Item = 'Dish ' || Item_ID, Billed_Amount = Billed_Amount + 1"},
};

const QString rawStatements = uR"(
    BEGIN;
    UPDATE Item SET ItemDescription = Items.Meal_Item, UnitPrice = Items.Billed_Amount,
        ItemTypeID = CASE Items.Meal WHEN 'B' THEN 1 WHEN 'MF' THEN 4 ELSE 6 END
        FROM Items WHERE Items.Item_ID = CAST(Item.ItemNo AS INTEGER)
        AND (Items.Meal_Item <> Item.ItemDescription OR Items.Billed_Amount <> Item.UnitPrice);
    INSERT INTO Item (ItemID, ItemNo, ItemDescription, UnitPrice, ItemTypeID, Suspended)
        SELECT 9999 + row_number() OVER (ORDER BY Item_ID), CAST(Item_ID AS VARCHAR(20)), Meal_Item, Billed_Amount,
            CASE Meal WHEN 'B' THEN 1 WHEN 'MF' THEN 4 ELSE 6 END, false
        FROM Items WHERE Item_ID IN (SELECT Item_ID FROM Items EXCEPT SELECT CAST(ItemNo AS INTEGER) FROM Item);
    COMMIT)"_s;

void synchronizeOurs(Engine::Database &database)
{
    CountedProgress progress;
    Tallymere::ItemSync(database).run(progress);
}

void synchronizeRaw(Engine::Database &database) { database.connection().execute(rawStatements); }

// Sums that differ when any item came out otherwise.
QString result(Engine::Database &database)
{
    return Engine::singleValue(database, u"SELECT count(*) FROM Item"_s).toText() + u' '
        + Engine::singleValue(
              database,
              u"SELECT sum(ItemID % 1000 * (CAST(ItemNo AS INTEGER) % 1000) * (UnitPrice + ItemTypeID)) "
              "FROM Item WHERE ItemDescription LIKE '%' || ItemNo"_s)
              .toText();
}

struct Run
{
    std::array<double, scenarios.size()> seconds;
    QString result;
};

Run measure(const BenchData &data, void (*synchronize)(Engine::Database &))
{
    const auto copy = data.copy();
    Engine::Database &database = copy->database();
    database.connection().execute(u"DELETE FROM Item"_s);
    for (const Engine::TableLayout &layout : Tallymere::HostTables::layouts()) {
        if (layout.name == "Items"_L1)
            database.createTable(layout);
    }
    Run run;
    for (size_t i = 0; i < scenarios.size(); ++i) {
        if (*scenarios[i].before)
            database.connection().execute(QString::fromLatin1(scenarios[i].before));
        run.seconds[i] = seconds([&] { synchronize(database); });
        run.result += result(database) + u' ';
    }
    return run;
}

void compare(Store store, int rounds)
{
    BenchData::Size size;
    size.items = 1;
    const BenchData data(store, size);
    std::array<std::vector<double>, scenarios.size()> ours, raws;
    for (int round = 0; round < rounds; ++round) {
        const Run raw = measure(data, synchronizeRaw);
        const Run our = measure(data, synchronizeOurs);
        if (our.result != raw.result)
            std::printf("  DIFFERENT RESULTS\n  ours %s\n  raw  %s\n", qPrintable(our.result),
                        qPrintable(raw.result));
        for (size_t i = 0; i < scenarios.size(); ++i) {
            ours[i].push_back(our.seconds[i]);
            raws[i].push_back(raw.seconds[i]);
        }
    }
    for (size_t i = 0; i < scenarios.size(); ++i) {
        const double our = median(ours[i]);
        const double raw = median(raws[i]);
        std::printf("%-6s %d items, %-13s: ours %5.2f s, raw %5.2f s, ours/raw %.2f\n", storeName(store), hostItems,
                    scenarios[i].name, our, raw, our / raw);
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString only = QCoreApplication::arguments().value(1);
    const int rounds = std::max(1, QCoreApplication::arguments().value(2, u"3"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote}) {
        if (only.isEmpty() || only == QString::fromLatin1(storeName(store)).toLower())
            compare(store, rounds);
    }
    return 0;
}
