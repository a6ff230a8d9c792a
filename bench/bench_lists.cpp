// Lists over a history of a million rows, and over a hundred thousand items and vendors: how long they take to open
// against reading their ordered keys by a raw statement, to find a row, to show the last one and to jump; those of
// items and vendors also to sort anew, to filter and to find by the typed beginning of the ordered column.
// Usage: bench_lists [local|remote] [ROUNDS] [MILLIONS of history rows]

#include "bench/benchdata.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/dialect.h"
#include "transactions/books/totalsview.h"

#include <cstdio>
#include <QCoreApplication>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int Million = 1'000'000;
constexpr int MasterRows = 100'000;
volatile double sink = 0; // what is read must be read

double readKeys(Engine::Database &database, const QString &sql)
{
    return seconds([&] {
        const Engine::StatementPtr keys = database.connection().prepare(sql);
        std::vector<qint64> read;
        while (keys->next())
            for (int i = 0; i < keys->columnCount(); ++i)
                read.push_back(keys->intAt(i));
        sink = sink + static_cast<double>(read.size());
    });
}

void readRow(const Engine::DataSet &list, int index) { sink = sink + list.rowAt(index).front().toDouble(); }

struct Times
{
    std::vector<double> keys, firstRows, open, last, jump, find;

    void print(Store store, const char *what) const
    {
        std::printf("%-6s %-8s: keys by a raw statement %6.1f ms, open to the first window %6.1f ms (%.2f), "
                    "first rows alone %.1f ms, last row %.1f ms, jump %.2f ms, find %.1f ms\n",
                    storeName(store), what, 1000 * median(keys), 1000 * median(open), median(open) / median(keys),
                    1000 * median(firstRows), 1000 * median(last), 1000 * median(jump), 1000 * median(find));
        std::fflush(stdout);
    }
};

void measureList(Engine::DataSet &list, const std::function<void()> &find, Times &times)
{
    constexpr int Jumps = 50;
    list.open();
    times.firstRows.push_back(seconds([&] { sink = sink + static_cast<double>(list.firstRows(40).size()); }));
    times.open.push_back(seconds([&] { readRow(list, 0); }));
    times.last.push_back(seconds([&] { readRow(list, list.recordCount() - 1); }));
    std::mt19937 random(3);
    times.jump.push_back(seconds([&] {
                             for (int i = 0; i < Jumps; ++i)
                                 readRow(list,
                                         static_cast<int>(random() % static_cast<unsigned>(list.recordCount())));
                         })
                         / Jumps);
    times.find.push_back(seconds(find));
    list.close();
}

void measureHistory(Engine::Database &database, int rows, Times &times)
{
    times.keys.push_back(
        readKeys(database,
                 u"SELECT IHistID FROM IHist ORDER BY GLYear DESC, GLPeriod DESC, TransDate DESC, IHistID DESC"_s));
    Engine::TableReader table(database, u"IHist"_s);
    table.setIndex(u"PERIODDATEDESC"_s);
    table.addLookup({u"ItemNo"_s, Engine::FieldType::Text, 20}, {u"ItemID"_s, u"Item"_s, u"ItemID"_s, u"ItemNo"_s});
    measureList(
        table, [&] { table.locate(u"ReceiptID"_s, {rows / 3}); }, times);
}

void measureTotals(Engine::Database &database, Times &times)
{
    times.keys.push_back(readKeys(database,
                                  u"SELECT B.ItemID, B.WarehouseID FROM IBalance B "
                                  "LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID "
                                  "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID "
                                  "ORDER BY I.ItemNo, W.WarehouseName, B.ItemID, B.WarehouseID"_s));
    Tallymere::TotalsView view(database, Tallymere::TotalsView::Figures::All); // as the screen shows them
    measureList(
        view.query(), [&view] { view.query().locate(u"ItemID"_s, {4321}); }, times);
}

// --- master lists -----------------------------------------------------------------------------------------------

struct MasterBench
{
    const char *what;
    QString table;
    QString key;
    QString column; // of the first order
    bool folded; // it does not count letter case
    QString order, otherOrder;
    QString filter, rawFilter; // which about half of the rows pass
    QStringList beginnings; // of texts of the first order, some of which no row has
};

const QList<MasterBench> masterLists = {
    {"items",
     u"Item"_s,
     u"ItemID"_s,
     u"ItemNo"_s,
     false,
     u"ITEMNO"_s,
     u"ITEMDESCRIPTION1"_s,
     u"(ItemTypeID > 3) AND (Suspended <> true)"_s,
     u"ItemTypeID > 3 AND Suspended IS NOT TRUE"_s,
     {u"I"_s, u"I7"_s, u"I77"_s, u"I777"_s, u"I7777"_s, u"I99999"_s, u"J"_s}},
    {"vendors",
     u"Vendor"_s,
     u"VendorID"_s,
     u"VendorName"_s,
     true,
     u"VENDORNAME1"_s,
     u"VENDORNO"_s,
     u"(CurrencyID = 2) AND (Suspended <> true)"_s,
     u"CurrencyID = 2 AND Suspended IS NOT TRUE"_s,
     {u"v"_s, u"vendor 7"_s, u"vendor 77"_s, u"vendor 777"_s, u"vendor 99999"_s, u"w"_s}},
};

struct MasterTimes
{
    std::vector<double> keys, open, sort, filteredKeys, filter, find, show;

    void print(Store store, const char *what) const
    {
        const auto ratio = [this](const std::vector<double> &times) { return median(times) / median(keys); };
        std::printf("%-6s %-8s: keys by a raw statement %6.1f ms, open to the first window %6.1f ms (%.2f), other "
                    "order %6.1f ms (%.2f), find a beginning %.3f ms (%.4f), show it %.2f ms (%.3f)\n",
                    storeName(store), what, 1000 * median(keys), 1000 * median(open), ratio(open),
                    1000 * median(sort), ratio(sort), 1000 * median(find), ratio(find), 1000 * median(show),
                    ratio(show));
        std::printf("%-6s %-8s: filtered keys by a raw statement %6.1f ms, filter %6.1f ms (%.2f)\n",
                    storeName(store), what, 1000 * median(filteredKeys), 1000 * median(filter),
                    median(filter) / median(filteredKeys));
        std::fflush(stdout);
    }
};

void measureFinding(Engine::Table &list, const MasterBench &bench, MasterTimes &times)
{
    const Engine::OrderedField first = list.orderedFields().constFirst();
    for (const QString &beginning : bench.beginnings) {
        times.find.push_back(seconds(
            [&] { list.locate(first.name, {beginning}, first.options() | Engine::LocateOption::PartialKey); }));
        times.show.push_back(seconds([&] { readRow(list, list.recordIndex()); }));
    }
}

void measureMaster(Engine::Database &database, const MasterBench &bench, MasterTimes &times)
{
    const QString order = database.connection().dialect().orderTerm(bench.column, bench.folded, false);
    const QString keys = u"SELECT %1 FROM %2 %4 ORDER BY %3, %1"_s.arg(bench.key, bench.table, order);
    times.keys.push_back(readKeys(database, keys.arg(QString())));
    times.filteredKeys.push_back(readKeys(database, keys.arg("WHERE "_L1 + bench.rawFilter)));
    Engine::Table list(database, bench.table);
    list.setIndex(bench.order);
    list.open();
    times.open.push_back(seconds([&] { readRow(list, 0); }));
    measureFinding(list, bench, times);
    times.sort.push_back(seconds([&] {
        list.setIndex(bench.otherOrder);
        readRow(list, 0);
    }));
    list.setIndex(bench.order);
    list.setFilter(bench.filter);
    times.filter.push_back(seconds([&] {
        list.setFiltered(true);
        readRow(list, 0);
    }));
}

void measureMasters(Store store, int rounds)
{
    BenchData::Size size;
    size.items = size.vendors = MasterRows;
    const BenchData data(store, size);
    const auto copy = data.copy();
    for (const MasterBench &bench : masterLists) {
        MasterTimes times;
        for (int round = 0; round < rounds; ++round)
            measureMaster(copy->database(), bench, times);
        times.print(store, bench.what);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString only = QCoreApplication::arguments().value(1);
    const int rounds = std::max(1, QCoreApplication::arguments().value(2, u"5"_s).toInt());
    const int millions = std::max(1, QCoreApplication::arguments().value(3, u"1"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote}) {
        if (!only.isEmpty() && only != QString::fromLatin1(storeName(store)).toLower())
            continue;
        BenchData::Size size;
        size.history = millions * Million;
        const BenchData data(store, size);
        const auto copy = data.copy();
        Times history, totals;
        resetPeakMemory();
        const double before = currentMemory();
        for (int round = 0; round < rounds; ++round) {
            measureHistory(copy->database(), size.history, history);
            measureTotals(copy->database(), totals);
        }
        history.print(store, "history");
        totals.print(store, "totals");
        std::printf("%-6s memory +%.0f MB\n", storeName(store), peakMemory() - before);
        measureMasters(store, rounds);
    }
    return 0;
}
