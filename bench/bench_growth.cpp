// What grows with the books: entering a line, posting, the totals, one item's history, a period's report, the values and
// opening the history, over histories of different lengths, a million rows for each fiscal year; each against raw statements
// in the same run. All times are medians, in milliseconds.
// Usage: bench_growth [local|remote] [ROUNDS] [MILLIONS[:ITEMS:LOCATIONS]...]

#include "bench/benchdata.h"
#include "bench/rawposting.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/store/groupedwrites.h"
#include "printing/rowreader.h"
#include "reports/reportlist.h"
#include "tests/support/spokenprompts.h"
#include "transactions/books/totalsview.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/historyview.h"
#include "transactions/entry/documententry.h"
#include "transactions/posting/documentposting.h"

#include <cstdio>
#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int million = 1'000'000;
constexpr int lastYear = 2025; // of the history
constexpr int documents = 100; // posted in a round
constexpr int linesEach = 20;
volatile double sink = 0; // what is read must be read

struct Compared
{
    const char *what;
    std::function<double(int round)> ours, raw; // seconds
};

double readAll(Engine::Database &database, const QString &sql)
{
    return seconds([&] {
        const Engine::StatementPtr rows = database.connection().prepare(sql);
        while (rows->next())
            for (int i = 0; i < rows->columnCount(); ++i)
                sink = sink + rows->doubleAt(i);
    });
}

double readFirst(const std::function<Engine::DataSet &()> &open)
{
    return seconds([&] {
        Engine::DataSet &list = open();
        sink = sink + list.recordCount() + list.rowAt(0).front().toDouble();
    });
}

double readReport(Engine::Database &database, const QString &name, int period)
{
    return seconds([&] {
        const ReportDescription &report = *ReportList::find(name);
        const auto rows = report.rows(database, report, {.period = period, .year = lastYear});
        for (Printing::ReportRow row; rows->next(row);)
            sink = sink + static_cast<double>(row.values.size());
    });
}

// --- entering ------------------------------------------------------------------------------------------------------

// A line of a receipt, as the screen enters it.
class Lines
{
public:
    explicit Lines(Engine::Database &database)
        : m_entry(DocumentKinds::receipt().entry.make(database, m_prompts))
    {
        m_entry->open();
        m_entry->newDocument();
        m_entry->header().set(Fields::WarehouseID, 1);
        m_entry->header().set(Fields::VendorID, 1);
    }
    ~Lines() { m_entry->cancel(); }

    double enter(int item)
    {
        return seconds([&] {
            m_entry->newLine();
            m_entry->lines().set(Fields::QtyReceived, 2.0);
            m_entry->chooseItem(item);
            m_entry->lines().set(Fields::UnitCost, Engine::Value(1.25));
            m_entry->lines().post();
        });
    }

private:
    SpokenPrompts m_prompts;
    std::unique_ptr<DocumentEntry> m_entry;
};

double insertLine(Engine::Database &database, int line)
{
    return seconds([&] {
        const Engine::StatementPtr row = database.connection().prepare(
            u"INSERT INTO IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost) VALUES (900000, ?, 1, 2, 1.25)"_s);
        row->bindInt(0, line);
        row->execute();
    });
}

// --- posting -------------------------------------------------------------------------------------------------------

void addReceipts(Engine::Database &database, int first)
{
    Engine::Connection &store = database.connection();
    Engine::Transaction transaction(store);
    const Engine::StatementPtr header = store.prepare(u"INSERT INTO IReceipt (ReceiptID, ReceiptNo, GLYear, "
                                                      u"GLPeriod, ReceiptDate, VendorID, WarehouseID, Posted) "
                                                      "VALUES (?, ?, 2026, 1, '2026-01-14', 1, ?, false)"_s);
    const Engine::StatementPtr line = store.prepare(
        u"INSERT INTO IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost) VALUES (?, ?, ?, 3, 1.25)"_s);
    for (int document = first; document < first + documents; ++document) {
        header->bindInt(0, document);
        header->bindText(1, QString::number(document));
        header->bindInt(2, document % 10 + 1);
        header->execute();
        for (int seq = 1; seq <= linesEach; ++seq) {
            line->bindInt(0, document);
            line->bindInt(1, seq);
            line->bindInt(2, (document * linesEach + seq) * 7919LL % 5'000 + 1);
            line->execute();
        }
    }
    transaction.commit();
}

double post(Engine::Database &database)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    return seconds([&] { DocumentPosting(database, DocumentKinds::receipt()).run(prompts, progress); });
}

double postRaw(Store store, const QStringList &place)
{
    const auto raw = store == Store::Local ? postRawSqlite : postRawPostgres;
    return seconds([&] { raw(RawDocuments::Receipts, rawLocation(place)); });
}

// --- lists ---------------------------------------------------------------------------------------------------------

// Until its first rows are painted and keys are taken, and what goes on beside that then.
template <typename View>
std::pair<double, double> openList(Engine::Database &database, View &view, const Engine::DataSet &list)
{
    constexpr int page = 64;
    Engine::DataSet::RestOver rest;
    const double opening = seconds([&] {
        view.open();
        sink = sink + static_cast<double>(list.firstRows(page).size());
        rest = list.restToCome();
        if (!rest)
            sink = sink + list.recordCount();
    });
    return {opening, seconds([&] {
                if (rest)
                    rest(database.connection())();
                sink = sink + list.recordCount();
            })};
}

std::pair<double, double> openHistory(Engine::Database &database)
{
    HistoryView view(database);
    return openList(database, view, view.table());
}

// The history that is shown, in the order of another title, and narrowed: until its first rows are there, what goes on beside
// that then, and until a page in its middle is there.
struct Sorting
{
    double first;
    double beside;
    double middle;
};

Sorting sortHistory(Engine::Database &database, const QString &field, const HistoryView::Filter &filter = {})
{
    HistoryView view(database);
    view.table().setFilter(HistoryView::filterExpression(filter));
    Engine::TableReader &list = view.table();
    list.onLongRead([&database](const Engine::DataSet::ReadOver &read) { read(database.connection()); });
    openList(database, view, list);
    const double first = seconds([&] {
        list.setSorting({field});
        list.setFiltered(!list.filter().isEmpty());
        sink = sink + static_cast<double>(list.beginsAnew() ? list.firstRows(64).size() : list.recordCount());
    });
    const double beside = seconds([&] {
        if (const Engine::DataSet::RestOver rest = list.restToCome())
            rest(database.connection())();
        sink = sink + list.recordCount();
    });
    return {first, beside, seconds([&] { sink = sink + list.rowAt(list.recordCount() / 2)[0].toDouble(); })};
}

std::pair<double, double> openTotals(Engine::Database &database)
{
    TotalsView view(database, TotalsView::Figures::All);
    return openList(database, view, view.query());
}

// --- the table -----------------------------------------------------------------------------------------------------

std::vector<Compared> comparisons(Store store, Engine::Database &database, const QStringList &place)
{
    const auto receipts = std::make_shared<int>(200'000);
    const auto more = [receipts, &database] {
        addReceipts(database, *receipts);
        *receipts += documents;
    };
    const auto lines = std::make_shared<Lines>(database);
    const QString latest = u"(GLYear, GLPeriod) >= (%1, 12)"_s.arg(lastYear);
    return {
        {"a line entered", [lines](int round) { return lines->enter(round + 1); },
         [&database](int round) { return insertLine(database, round + 1); }},
        {"2,000 lines posted",
         [&database, more](int) {
             more();
             return post(database);
         },
         [store, place, more](int) {
             more();
             return postRaw(store, place);
         }},
        {"totals opened", [&database](int) { return openTotals(database).first; },
         [&database](int) {
             return readAll(database,
                            u"SELECT B.ItemID, B.WarehouseID FROM Item I JOIN IBalance B ON B.ItemID = I.ItemID "
                            "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID "
                            "ORDER BY I.ItemNo, W.WarehouseName, B.ItemID, B.WarehouseID LIMIT 64"_s);
         }},
        {"their keys beside", [&database](int) { return openTotals(database).second; },
         [&database](int) {
             return readAll(database,
                            u"SELECT B.ItemID, B.WarehouseID FROM IBalance B LEFT OUTER JOIN Item I ON B.ItemID = "
                            "I.ItemID LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID "
                            "ORDER BY I.ItemNo, W.WarehouseName, B.ItemID, B.WarehouseID"_s);
         }},
        {"one item's history",
         [&database](int round) {
             auto view = std::make_unique<HistoryView>(database);
             return readFirst([&view, round]() -> Engine::DataSet & {
                 view->table().setFilter(HistoryView::filterExpression({.itemId = 100 + round}));
                 view->table().setFiltered(true);
                 view->open();
                 return view->table();
             });
         },
         [&database](int round) {
             return readAll(database,
                            u"SELECT IHistID FROM IHist WHERE ItemID = %1 ORDER BY GLYear DESC, GLPeriod DESC, "
                            "TransDate DESC, IHistID DESC"_s.arg(100 + round));
         }},
        {"a period's summary",
         [&database](int) { return readReport(database, u"Perpetual Summary by Item"_s, 12); },
         [&database, latest](int) {
             return readAll(database,
                            u"SELECT ItemID, TransType, sum(Quantity) FROM IHist WHERE %1 GROUP BY ItemID, "
                            "TransType ORDER BY ItemID"_s.arg(latest));
         }},
        {"values, all balances",
         [&database](int) { return readReport(database, u"Value by Type /Item /Location"_s, 0); },
         [&database](int) {
             return readAll(
                 database,
                 u"SELECT B.ItemID, B.WarehouseID, B.QtyOnHand, I.WgtAvgCost, T.CostingMethod FROM "
                 "IBalance B LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID LEFT OUTER JOIN ItemType T ON "
                 "I.ItemTypeID = T.ItemTypeID ORDER BY T.TypeName, I.ItemNo"_s);
         }},
        {"the history opened", [&database](int) { return openHistory(database).first; },
         [&database](int) {
             return readAll(database,
                            u"SELECT * FROM IHist ORDER BY GLYear DESC NULLS LAST, GLPeriod DESC NULLS LAST, "
                            "TransDate DESC NULLS LAST, IHistID DESC NULLS LAST LIMIT 64"_s);
         }},
        {"by quantity", [&database](int) { return sortHistory(database, Fields::Quantity).first; },
         [&database](int) {
             return readAll(database,
                            u"SELECT * FROM IHist ORDER BY Quantity NULLS FIRST, IHistID NULLS FIRST LIMIT 64"_s);
         }},
        {"by location", [&database](int) { return sortHistory(database, Fields::WarehouseName).first; },
         [&database](int) {
             return readAll(
                 database, u"SELECT * FROM IHist ORDER BY WarehouseID NULLS FIRST, IHistID NULLS FIRST LIMIT 64"_s);
         }},
        {"by item no.", [&database](int) { return sortHistory(database, Fields::ItemNo).first; },
         [&database](int) {
             return readAll(database, u"SELECT * FROM IHist WHERE ItemID = 1 ORDER BY IHistID LIMIT 64"_s);
         }},
        {"counted beside", [&database](int) { return sortHistory(database, Fields::ItemNo).beside; },
         [&database](int) { return readAll(database, u"SELECT ItemID, COUNT(*) FROM IHist GROUP BY ItemID"_s); }},
        {"its middle", [&database](int) { return sortHistory(database, Fields::ItemNo).middle; },
         [&database](int) {
             return readAll(
                 database,
                 u"SELECT * FROM IHist JOIN Item ON Item.ItemID = IHist.ItemID ORDER BY ItemNo, IHistID LIMIT 64 OFFSET 500000"_s);
         }},
        {"a location by quantity",
         [&database](int) { return sortHistory(database, Fields::Quantity, {.warehouseId = 2}).first; },
         [&database](int) {
             return readAll(
                 database,
                 u"SELECT * FROM IHist WHERE WarehouseID = 2 ORDER BY Quantity NULLS FIRST, IHistID NULLS "
                 "FIRST LIMIT 64"_s);
         }},
        {"a period by item no.",
         [&database](int) { return sortHistory(database, Fields::ItemNo, {.year = lastYear, .period = 12}).first; },
         [&database, latest](int) {
             return readAll(database, u"SELECT * FROM IHist WHERE %1 AND ItemID = 1 LIMIT 64"_s.arg(latest));
         }},
        {"a period by location",
         [&database](int) {
             return sortHistory(database, Fields::WarehouseName, {.year = lastYear, .period = 12}).first;
         },
         [&database, latest](int) {
             return readAll(database, u"SELECT * FROM IHist WHERE %1 AND WarehouseID = 1 LIMIT 64"_s.arg(latest));
         }},
        {"a period by date",
         [&database](int) {
             return sortHistory(database, Fields::TransDate, {.year = lastYear, .period = 12}).first;
         },
         [&database](int) {
             return readAll(
                 database,
                 u"SELECT * FROM IHist WHERE GLYear = %1 AND GLPeriod = 12 ORDER BY TransDate NULLS FIRST, "
                 "IHistID NULLS FIRST LIMIT 64"_s.arg(lastYear));
         }},
        {"an item by description",
         [&database](int) { return sortHistory(database, Fields::TransDescription, {.itemId = 101}).first; },
         [&database](int) { return readAll(database, u"SELECT * FROM IHist WHERE ItemID = 101 LIMIT 64"_s); }},
        {"its rows counted beside", [&database](int) { return openHistory(database).second; },
         [&database](int) { return readAll(database, u"SELECT COUNT(*) FROM IHist"_s); }},
    };
}

BenchData::Size sizeOf(const QString &asked)
{
    const QStringList numbers = asked.split(u':');
    const int millions = std::max(1, numbers.first().toInt());
    BenchData::Size size{.history = millions * million, .years = millions};
    if (numbers.size() == 3) {
        size.items = numbers[1].toInt();
        size.locations = numbers[2].toInt();
    }
    return size;
}

void measure(Store store, const BenchData::Size &size, int rounds)
{
    const BenchData data(store, size);
    const std::unique_ptr<TestUser> user = data.open();
    std::printf("%-6s %d million rows, %d items, %d locations, %.0f MB\n", storeName(store), size.years, size.items,
                size.locations, static_cast<double>(user->database.connection().size()) / 1e6);
    for (const Compared &compared : comparisons(store, user->database, data.place())) {
        std::vector<double> ours, raw;
        for (int round = 0; round < rounds; ++round) {
            raw.push_back(compared.raw(round));
            ours.push_back(compared.ours(round));
        }
        std::printf("  %-22s ours %9.2f ms, raw %9.2f ms, %.2f\n", compared.what, 1000 * median(ours),
                    1000 * median(raw), median(ours) / median(raw));
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString only = arguments.isEmpty() ? QString() : arguments.takeFirst();
    const int rounds = arguments.isEmpty() ? 5 : std::max(1, arguments.takeFirst().toInt());
    if (arguments.isEmpty())
        arguments = {u"1"_s};
    for (const Store store : {Store::Local, Store::Remote})
        for (const QString &size : std::as_const(arguments))
            if (only.isEmpty() || only == QString::fromLatin1(storeName(store)).toLower())
                measure(store, sizeOf(size), rounds);
    return 0;
}
