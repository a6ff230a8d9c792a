// Reports and lists made beside somebody who posts: a process of its own that commits document by document. Each
// document moves the same quantity, so that what is between two documents shows in every sum.

#include "base/csvlist.h"
#include "base/csvreader.h"
#include "data/datamodule.h"
#include "host/tables/hosttables.h"
#include "printing/reportcsv.h"
#include "reports/makereport.h"
#include "reports/reportlist.h"
#include "tests/support/kitchen.h"
#include "tests/support/otheruser.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"
#include "transactions/historyview.h"
#include "transactions/totalsview.h"

#include <cmath>
#include <cstdio>
#include <QBuffer>
#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int items = 600;
constexpr int linesEach = 40; // of one piece

class Race : public testing::TestWithParam<Store>
{
protected:
    Kitchen kitchen{GetParam()};
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    const int documents = timesByHand(100);

    void fill()
    {
        HostTables::createHostTables(kitchen.database(), u"Test Kitchen"_s, u"USA"_s);
        Engine::Connection &connection = kitchen.database().connection();
        connection.begin();
        kitchen.execute(u"UPDATE ItemType SET CostingMethod = 2, Inventory = true"_s);
        QStringList values;
        for (int id = 101; id <= 100 + items; ++id)
            values << u"(%1, 'N%1', 'Item %1', 1, false, 1)"_s.arg(id);
        kitchen.execute(
            "INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended, StandardCost) VALUES "_L1
            + values.join(u','));
        kitchen.execute(u"INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) "
                        "SELECT ItemID, WarehouseID, 0 FROM Item, Warehse WHERE ItemID > 100"_s);
        std::mt19937 random(5);
        for (int id = 1; id <= documents; ++id) {
            QList<Kitchen::Line> lines;
            for (int i = 0; i < linesEach; ++i)
                lines.append({101 + static_cast<int>(random() % items), 1, 1});
            kitchen.addReceipt(id, 1, 1 + id % 2, lines);
        }
        connection.commit();
    }

    static QList<QStringList> rowsOf(const std::function<void(QIODevice &)> &write)
    {
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        write(buffer);
        buffer.seek(0);
        CsvReader reader(buffer);
        QList<QStringList> rows;
        while (reader.next())
            rows.append(reader.fields());
        return rows;
    }
    // Of the rows whose first column says so.
    static double sum(const QList<QStringList> &rows, const QString &field, const QString &band = {})
    {
        const qsizetype column = rows.first().indexOf(field);
        double sum = 0;
        for (const QStringList &row : rows.mid(1))
            if (band.isEmpty() || row.first() == band)
                sum += row[column].toDouble();
        return sum;
    }
    QList<QStringList> report(TDataModuleTallymere &data, const QString &name)
    {
        const Printing::Report made = makeReport(data, *ReportList::find(name), {.period = 1, .year = 2026});
        return rowsOf([&](QIODevice &file) { writeReportCsv(made.layout, *made.rows, file, progress); });
    }
};
ON_BOTH_STORES(Race);

TEST_P(Race, EveryFigureIsOfTheTimeBetweenTwoDocuments)
{
    fill();
    DataModuleOptions options;
    options.dataFolder = kitchen.store() == Store::Local ? kitchen.directory() : QString();
    options.server = kitchen.store() == Store::Remote ? u"127.0.0.1"_s : QString();
    options.serverDatabase = kitchen.remoteName();
    TDataModuleTallymere data(settings, prompts, options);
    Engine::Database &database = data.databaseTallymere();
    const auto mixed = [](double figure) { return std::fmod(figure, linesEach) != 0; };
    const auto sumOf = [&](const Engine::DataSet &set, const QString &field) {
        return sum(rowsOf([&](QIODevice &file) { writeCsvList(set, {field}, file, progress); }), field);
    };
    const QList<std::pair<QString, std::function<bool()>>> listings{
        {u"totals"_s,
         [&] {
             TotalsView view(database);
             view.open();
             return mixed(sumOf(view.query(), u"QtyOnHand"_s));
         }},
        {u"history"_s,
         [&] {
             HistoryView view(database);
             view.open();
             return mixed(sumOf(view.table(), u"Quantity"_s));
         }},
        {u"Value by Item /Location"_s,
         [&] {
             return mixed(sum(report(data, u"Value by Item /Location"_s), u"ItemWhseValue"_s, u"report total"_s));
         }},
        {u"Perpetual by Item"_s,
         [&] {
             const QList<QStringList> rows = report(data, u"Perpetual by Item"_s);
             return mixed(sum(rows, u"Quantity"_s, u"detail"_s)) || sum(rows, u"Balance"_s, u"opening"_s) != 0;
         }},
        {u"Perpetual by Item /Location"_s,
         [&] {
             const QList<QStringList> rows = report(data, u"Perpetual by Item /Location"_s);
             return sum(rows, u"Quantity"_s, u"detail"_s) != sum(rows, u"Balance"_s, u"group total"_s);
         }},
    };

    std::vector<int> made(listings.size()), bad(listings.size());
    OtherUser poster(kitchen, {u"post"_s});
    while (kitchen.number(u"SELECT count(*) FROM IReceipt WHERE Posted = false"_s) > 0) {
        for (size_t i = 0; i < made.size(); ++i) {
            ++made[i];
            bad[i] += listings[static_cast<qsizetype>(i)].second() ? 1 : 0;
        }
    }
    EXPECT_TRUE(poster.finish());
    for (size_t i = 0; i < made.size(); ++i) {
        const QString &name = listings[static_cast<qsizetype>(i)].first;
        EXPECT_EQ(bad[i], 0) << qPrintable(name);
        std::printf("%s: %d of %d mixed\n", qPrintable(name), bad[i], made[i]);
    }
}

void post(Engine::Database &database, const QStringList &)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    DocumentPosting posting(database, DocumentKinds::receipt());
    posting.groupTime = std::chrono::milliseconds(0);
    posting.run(prompts, progress);
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"post"_s, post}}); }
