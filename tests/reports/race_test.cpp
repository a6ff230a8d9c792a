// Reports and lists made beside somebody who posts: a process of its own that commits document by document. Each
// document moves the same quantity, so that what is between two documents shows in every sum.

#include "base/csvlist.h"
#include "reports/makereport.h"
#include "reports/reportlist.h"
#include "tests/reports/reportcsvof.h"
#include "tests/support/dataplace.h"
#include "tests/support/kitchen.h"
#include "tests/support/otheruser.h"
#include "transactions/books/totalsview.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/historyview.h"
#include "transactions/posting/documentposting.h"

#include <cmath>
#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int items = 600;
constexpr int linesEach = 40; // of one piece

struct Race : testing::TestWithParam<Store>
{
    Kitchen kitchen{GetParam()};
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    const int documents = timesByHand(100);

    void fill()
    {
        kitchen.makeHost();
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
        return csvRows(csvOf(makeReport(data, *ReportList::find(name), {.period = 1, .year = 2026})));
    }
};
ON_BOTH_STORES(Race);

TEST_P(Race, EveryFigureIsOfTheTimeBetweenTwoDocuments)
{
    fill();
    TDataModuleTallymere data(settings, prompts, placeOf(kitchen));
    Engine::Database &database = data.databaseTallymere();
    const auto mixed = [](double figure) { return std::fmod(figure, linesEach) != 0; };
    const auto sumOf = [&](const Engine::DataSet &set, const QString &field) {
        const auto write = [&](QIODevice &file) { writeCsvList(set, {field}, file, progress); };
        return sum(csvRows(writtenBy(write)), field);
    };
    struct Listing
    {
        const char *name;
        std::function<bool()> isMixed;
        int made = 0, bad = 0;
    } listings[] = {
        {"totals",
         [&] {
             TotalsView view(database);
             view.open();
             return mixed(sumOf(view.query(), u"QtyOnHand"_s));
         }},
        {"history",
         [&] {
             HistoryView view(database);
             view.open();
             return mixed(sumOf(view.table(), u"Quantity"_s));
         }},
        {"value",
         [&] {
             return mixed(sum(report(data, u"Value by Item /Location"_s), u"ItemWhseValue"_s, u"report total"_s));
         }},
        {"perpetual",
         [&] {
             const QList<QStringList> rows = report(data, u"Perpetual by Item"_s);
             return mixed(sum(rows, u"Quantity"_s, u"detail"_s)) || sum(rows, u"Balance"_s, u"opening"_s) != 0;
         }},
        {"perpetual by location",
         [&] {
             const QList<QStringList> rows = report(data, u"Perpetual by Item /Location"_s);
             return sum(rows, u"Quantity"_s, u"detail"_s) != sum(rows, u"Balance"_s, u"group total"_s);
         }},
    };

    OtherUser poster(kitchen, {u"post"_s});
    while (kitchen.number(u"SELECT count(*) FROM IReceipt WHERE Posted = false"_s) > 0) {
        for (Listing &listing : listings) {
            ++listing.made;
            listing.bad += listing.isMixed() ? 1 : 0;
        }
    }
    EXPECT_TRUE(poster.finish());
    for (const auto &[name, isMixed, made, bad] : listings) {
        EXPECT_EQ(bad, 0) << name;
        std::printf("%s: %d of %d mixed\n", name, bad, made);
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
