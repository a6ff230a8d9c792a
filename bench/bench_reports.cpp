// Reports over the large sample kitchen, a history of a million rows and 5,000 items: the rows of the perpetual report
// against walking the history item by item with raw statements, and how long the first page takes. And 2,000 pages of
// PDF against a plain painter that draws the same texts at the same places, with the memory that they take.
// Usage: bench_reports [local|remote|pages] [ROUNDS]

#include "bench/benchdata.h"
#include "data/datamodule.h"
#include "host/sample/largekitchen.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "printing/reportoutput.h"
#include "reports/columns.h"
#include "reports/momentrows.h"
#include "reports/reportlist.h"
#include "tests/support/spokenprompts.h"

#include <cstdio>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int shortReport = 200; // pages
constexpr int longReport = 2'000;
volatile double sink = 0; // what is read must be read
CountedProgress progress;

// --- rows and first pages, from a store ------------------------------------------------------------------------------

class Kitchen
{
public:
    explicit Kitchen(Store store)
        : m_store(store)
    {
        DataModuleOptions options;
        options.dataFolder = store == Store::Local ? m_store.directory() : QString();
        options.server = store == Store::Remote ? u"127.0.0.1"_s : QString();
        options.serverDatabase = m_store.remoteName();
        options.prepareHost = [](Engine::Database &database) {
            HostTables::createHostTables(database, u"Kitchen"_s, u"USA"_s);
        };
        TDataModuleTallymere data(m_settings, m_prompts, options);
        bringInSampleMasters(data, progress);
        LargeKitchen(data.databaseTallymere(), 1, {}).fill(progress);
        data.databaseTallymere().connection().execute(u"ANALYZE"_s);
    }

    Engine::Database &database() { return m_store.database(); }

private:
    TestStore m_store;
    MemorySettings m_settings;
    SpokenPrompts m_prompts;
};

const ReportSelection everything{.period = 1, .year = 2000};

const ReportDescription &report(const QString &name) { return *ReportList::find(name); }

Printing::RowReaderPtr rowsOf(Engine::Database &database, const ReportDescription &made)
{
    auto moment = std::make_unique<Engine::ReadMoment>(database);
    auto rows = made.rows(moment->database(), made, everything);
    return momentRows(std::move(moment), std::move(rows), nullptr);
}

int readRows(Engine::Database &database, const ReportDescription &perpetual)
{
    int count = 0;
    Printing::ReportRow row;
    for (const auto rows = rowsOf(database, perpetual); rows->next(row); ++count)
        sink = sink + static_cast<double>(row.values.size());
    return count;
}

int walkItemByItem(Engine::Database &database)
{
    struct Entry
    {
        int type;
        QDate date;
        QString description;
        double quantity;
    };
    int count = 0;
    const Engine::StatementPtr balances =
        database.connection().prepare(u"SELECT B.ItemID, Sum(B.QtyOnHand), I.ItemNo, I.ItemDescription "
                                      "FROM IBalance B LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID "
                                      "GROUP BY B.ItemID, I.ItemNo, I.ItemDescription ORDER BY I.ItemNo"_s);
    const Engine::StatementPtr history = database.connection().prepare(
        u"SELECT TransType, TransDate, TransDescription, Quantity FROM IHist WHERE ItemID = ? "
        "AND (GLYear, GLPeriod) >= (?, ?) ORDER BY GLYear, GLPeriod, TransDate, IHistID"_s);
    std::vector<std::pair<int, double>> items;
    for (; balances->next(); ++count)
        items.emplace_back(static_cast<int>(balances->intAt(0)), balances->doubleAt(1));
    for (auto &[item, balance] : items) {
        history->reset();
        history->bindInt(0, item);
        history->bindInt(1, everything.year);
        history->bindInt(2, everything.period);
        std::vector<Entry> entries;
        while (history->next())
            entries.push_back({static_cast<int>(history->intAt(0)),
                               history->valueAt(1, Engine::FieldType::Date).toDate(), history->textAt(2),
                               history->doubleAt(3)});
        for (const Entry &entry : entries)
            balance -= entry.type == 2 || entry.type == 5 ? -entry.quantity : entry.quantity;
        for (const Entry &entry : entries) {
            balance += entry.type == 2 || entry.type == 5 ? -entry.quantity : entry.quantity;
            sink = sink + balance;
        }
        count += static_cast<int>(entries.size());
    }
    return count;
}

void measureRows(Store store, Engine::Database &database, int rounds)
{
    std::vector<double> walks, reads;
    int walked = 0;
    int read = 0;
    for (int round = 0; round < rounds; ++round) {
        walks.push_back(seconds([&] { walked = walkItemByItem(database); }));
        reads.push_back(seconds([&] { read = readRows(database, report(u"Perpetual by Item"_s)); }));
    }
    std::printf(
        "%-6s rows of the perpetual report: %d in %.2f s, item by item by raw statements %d in %.2f s: %.2f\n",
        storeName(store), read, median(reads), walked, median(walks), median(reads) / median(walks));
}

void measureFirstPage(Store store, Engine::Database &database, const QString &name, int rounds)
{
    using namespace std::chrono_literals;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(seconds([&] {
            const ReportDescription &shown = report(name);
            Printing::ReportRun run({shown.layout, rowsOf(database, shown)}, QPageSize::A4, {});
            while (run.pageCount() == 0)
                run.makePages(QDeadlineTimer(10ms));
        }));
    std::printf("%-6s first page of %s: %.0f ms\n", storeName(store), qPrintable(name), 1000 * median(times));
}

void measureStore(Store store, int rounds)
{
    Kitchen kitchen(store);
    measureRows(store, kitchen.database(), rounds);
    for (const char *name : {"Perpetual by Item", "Perpetual by Item /Location", "Perpetual Summary by Item",
                             "Value by Item", "Inventory History", "Inventory Totals"})
        measureFirstPage(store, kitchen.database(), QString::fromLatin1(name), rounds);
    std::fflush(stdout);
}

// --- pages -----------------------------------------------------------------------------------------------------------

// Movements of items without end; the reader of a run says how many pages it wants.
class Movements final : public Printing::RowReader
{
public:
    explicit Movements(const std::function<bool()> &isEnough)
        : m_isEnough(isEnough)
    {
    }

    const QStringList &fields() const override { return m_fields; }
    bool next(Printing::ReportRow &row) override
    {
        if (m_isEnough())
            return false;
        const int i = m_count++;
        const bool opening = i % 30 == 0;
        row.kind = opening ? Printing::RowKind::Opening : Printing::RowKind::Detail;
        row.values = {i / 30,
                      u"IT%1"_s.arg(10'000 + i / 30),
                      u"Item number %1 of the kitchen"_s.arg(i / 30),
                      opening ? Engine::Value() : Engine::Value(u"PO Receipt"_s),
                      opening ? Engine::Value() : Engine::Value(QDate(2026, 1 + i % 12, 1 + i % 28)),
                      opening ? Engine::Value() : Engine::Value(u"Receipt: %1   PO: PO%1"_s.arg(1'000 + i)),
                      0.5 * (i % 400),
                      0.25 * (i % 4'000)};
        return true;
    }

private:
    const QStringList m_fields{u"ItemID"_s,    u"ItemNo"_s,           u"ItemDescription"_s, u"TransTypeName"_s,
                               u"TransDate"_s, u"TransDescription"_s, u"Quantity"_s,        u"Balance"_s};
    std::function<bool()> m_isEnough;
    int m_count = 0;
};

std::unique_ptr<Printing::ReportRun> runOf(int pages)
{
    // The reader is made before the run that it asks.
    const auto run = std::make_shared<Printing::ReportRun *>();
    auto made = std::make_unique<Printing::ReportRun>(
        Printing::Report{report(u"Perpetual by Item"_s).layout,
                         std::make_unique<Movements>([run, pages] { return (*run)->pageCount() >= pages - 1; })},
        QPageSize::A4, Printing::PageTexts{u"Kitchen"_s, u"Printed at 25 Nov 26 12:00"_s});
    *run = made.get();
    return made;
}

// From rows to the file.
void writePdf(const QString &fileName, int pages)
{
    const auto run = runOf(pages);
    run->makePages();
    Printing::savePdf(*run, fileName, Printing::allPages(*run), progress);
    if (run->pageCount() != pages)
        std::printf("%d pages instead of %d\n", run->pageCount(), pages);
}

void drawPlainly(const QString &fileName, const QList<Printing::Page> &pages, const QPageLayout &layout)
{
    QPdfWriter writer(fileName);
    writer.setResolution(static_cast<int>(Printing::unitsPerInch));
    writer.setPageLayout(layout);
    QPainter painter(&writer);
    for (const Printing::Page &page : pages) {
        if (&page != &pages.first())
            writer.newPage();
        for (const Printing::TextItem &text : page.texts) {
            painter.setFont(Printing::fontOf(text.style));
            painter.drawText(QPointF(text.x, text.y), text.text);
        }
        for (const Printing::Fill &fill : page.fills)
            painter.fillRect(fill.area, Qt::black);
    }
}

void measurePages(int rounds)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"report.pdf"_s);
    double peaks[2] = {};
    for (const int pages : {shortReport, longReport}) {
        resetPeakMemory();
        writePdf(file, pages);
        peaks[pages == longReport ? 1 : 0] = peakMemory();
    }
    const auto run = runOf(longReport);
    run->makePages();
    QList<Printing::Page> pages;
    for (int i = 0; i < run->pageCount(); ++i)
        pages.append(run->page(i));
    std::vector<double> plain, ours;
    for (int round = 0; round < rounds; ++round) {
        plain.push_back(seconds([&] { drawPlainly(file, pages, run->paper().layout()); }));
        ours.push_back(seconds([&] { writePdf(file, longReport); }));
    }
    std::printf(
        "PDF of %d pages, from rows to the file: %.2f s, plain painter %.2f s: %.2f; memory over that of %d "
        "pages +%.1f MB\n",
        longReport, median(ours), median(plain), median(ours) / median(plain), shortReport, peaks[1] - peaks[0]);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QString only = QGuiApplication::arguments().value(1);
    const int rounds = std::max(1, QGuiApplication::arguments().value(2, u"3"_s).toInt());
    if (only.isEmpty() || only == "pages"_L1)
        measurePages(rounds);
    for (const Store store : {Store::Local, Store::Remote})
        if (only.isEmpty() || only == QString::fromLatin1(storeName(store)).toLower())
            measureStore(store, rounds);
    return 0;
}
