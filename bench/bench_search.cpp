// Looking for what no index finds, in a history of a million rows: words in all columns as the list's search looks for them, in
// steps; a field without an index; other orders and filters. Prints how long each takes, how long the window stands still at
// most meanwhile, and the raw statement that reads as many rows.
// Usage: bench_search [local|remote] [MILLIONS of history rows]

#include "bench/benchdata.h"
#include "controls/grids/rowsearch.h"
#include "controls/grids/tablemodel.h"
#include "data/fields.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documents/historyview.h"

#include <cstdio>
#include <QApplication>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int million = 1'000'000;
constexpr qint64 stepLength = 20; // ms
volatile double sink = 0; // what is read must be read

QList<GridColumn> columns()
{
    return {{u"Periodppyyyy"_s, {}},       {Fields::TransDate, {}},     {Fields::ItemNo, {}},
            {Fields::ItemDescription, {}}, {Fields::TransType, {}},     {Fields::Quantity, {}},
            {Fields::UnitCost, {}},        {Fields::WarehouseName, {}}, {Fields::TransDescription, {}}};
}

void print(Store store, const char *what, double all, double longest, double raw)
{
    std::printf("%-6s %-34s %8.0f ms, longest standstill %6.0f ms, raw %6.0f ms\n", storeName(store), what,
                1000 * all, 1000 * longest, 1000 * raw);
    std::fflush(stdout);
}

double readRaw(Engine::Database &database, const QString &sql)
{
    return seconds([&] {
        const Engine::StatementPtr rows = database.connection().prepare(sql);
        while (rows->next())
            for (int i = 0; i < rows->columnCount(); ++i)
                sink = sink + static_cast<double>(rows->textAt(i).size());
    });
}

void searchWords(Store store, TableModel &model, Engine::Database &database)
{
    RowSearch search(model);
    search.begin(TextMatch(u"no such thing"_s), 0);
    double longest = 0;
    const double all = seconds([&] {
        while (search.isOn())
            longest = std::max(longest, seconds([&] { search.step(stepLength); }));
    });
    print(
        store, "words in all columns", all, longest,
        readRaw(database,
                u"SELECT H.GLYear, H.GLPeriod, H.TransDate, I.ItemNo, I.ItemDescription, H.TransType, H.Quantity, "
                "H.UnitCost, W.WarehouseName, H.TransDescription FROM IHist H LEFT JOIN Item I ON I.ItemID = "
                "H.ItemID LEFT JOIN Warehse W ON W.WarehouseID = H.WarehouseID ORDER BY H.GLYear DESC, H.GLPeriod "
                "DESC, H.TransDate DESC, H.IHistID DESC"_s));
}

void atOnce(Store store, const char *what, const std::function<void()> &work, Engine::Database &database,
            const QString &raw)
{
    const double time = seconds(work);
    print(store, what, time, time, readRaw(database, raw));
}

void measure(Store store, int millions)
{
    const BenchData data(store, {.history = millions * million, .years = millions});
    const auto user = data.open();
    HistoryView view(user->database);
    Engine::TableReader &table = view.table();
    view.open();
    SpokenPrompts prompts;
    const Guard guard(prompts);
    TableModel model(table, columns(), guard);
    const QString keys = u"SELECT IHistID FROM IHist%1"_s;
    searchWords(store, model, user->database);
    const auto show = [&table] { sink = sink + table.rowAt(0).front().toDouble() + table.recordCount(); };
    atOnce(
        store, "a field without an index", [&] { table.locate(u"TransDescription"_s, {u"Receipt: 7"_s}); },
        user->database, keys.arg(u" WHERE TransDescription = 'Receipt: 7'"_s));
    const auto sort = [&](const QString &field) {
        table.setSorting({field, false});
        show();
    };
    atOnce(
        store, "ordered by a field without an index", [&] { sort(Fields::Quantity); }, user->database,
        keys.arg(u" ORDER BY Quantity"_s));
    atOnce(
        store, "ordered by a text without an index", [&] { sort(Fields::TransDescription); }, user->database,
        keys.arg(u" ORDER BY TransDescription"_s));
    atOnce(
        store, "ordered by a looked-up text", [&] { sort(Fields::ItemDescription); }, user->database,
        u"SELECT H.IHistID FROM IHist H LEFT JOIN Item I ON I.ItemID = H.ItemID ORDER BY I.ItemDescription"_s);
    table.setSorting({});
    atOnce(
        store, "filtered by a text without an index",
        [&] {
            table.setFilter(u"(TransDescription CONTAINS '77')"_s);
            table.setFiltered(true);
            show();
        },
        user->database, keys.arg(u" WHERE TransDescription LIKE '%77%'"_s));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QString only = QApplication::arguments().value(1);
    const int millions = std::max(1, QApplication::arguments().value(2).toInt());
    for (const Store store : {Store::Local, Store::Remote})
        if (only.isEmpty() || only == QString::fromLatin1(storeName(store)).toLower())
            measure(store, millions);
    return 0;
}
