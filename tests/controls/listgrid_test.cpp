#include "controls/grids/columnwidths.h"
#include "controls/grids/listgrid.h"
#include "controls/grids/liststatus.h"
#include "controls/screens/listcommands.h"
#include "controls/windows/screenmetrics.h"
#include "tests/controls/controltest.h"

#include <numeric>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int dishes = 200;

const Engine::TableLayout layout =
    madeLayout(u"Dish"_s, u"DishID integer, DishNo text 10, Name text 20"_s,
               u"DishID primary, DISHNO DishNo, NAME1 Name folded, NAMEROW Name;DishID folded"_s);

// Dish 1 to 200, numbered D0001 and so on.
struct ListGridTest : ControlTest
{
    explicit ListGridTest(Store kind = Store::Local)
        : ControlTest(layout, kind)
    {
        store.fill(u"Dish (DishID, DishNo, Name)"_s, u"i, 'D' || substr('' || (10000 + i), 2), 'Dish ' || i"_s,
                   dishes);
        table.addCalculated({u"Twice"_s, Engine::FieldType::Integer},
                            [](const Engine::DataSet &dish) { return Engine::Value(2 * dish.integer(u"DishID")); });
        table.open();
        grid.allowSelection();
        grid.resize(400, 400);
        grid.setDataSet(table,
                        {{u"Name"_s, u"Name"_s, 200}, {u"Twice"_s, u"Twice"_s, 120}, {u"DishNo"_s, u"No."_s, 120}},
                        guard);
    }

    int rows() const { return grid.model()->rowCount(); }
    QString cell(int row, int column) const { return cellOf(grid, row, column); }
    void showAll()
    {
        showActive(grid);
        EXPECT_TRUE(comesTrue([this] { return rows() == dishes; }));
    }
    // "2-5 9": the rows that are selected, and after a colon the one under the cursor.
    QString selected() const
    {
        QStringList ranges;
        for (const RowRange &range : grid.selectedRows())
            ranges << (range.count() == 1 ? QString::number(range.first)
                                          : u"%1-%2"_s.arg(range.first).arg(range.last));
        return ranges.join(u' ') + u": "_s + QString::number(grid.currentIndex().row());
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) { clickOn(grid, row, 0, modifiers); }

    ListGrid grid;
};

struct ListSearchTest : ListGridTest
{
    ListSearchTest()
        : ListGridTest(GetParam())
    {
    }

    QString name() const { return table.text(u"Name"); }
};

} // namespace

TEST_F(ListGridTest, firstPageIsThereBeforeTheListIsRead)
{
    EXPECT_TRUE(grid.tableModel()->isPartial());
    EXPECT_GT(rows(), 30);
    EXPECT_LT(rows(), dishes);
    EXPECT_EQ(cell(30, 0), u"Dish 31"_s);
    EXPECT_EQ(cell(30, 1), u"62"_s) << "what is calculated too";
    EXPECT_EQ(grid.currentIndex().row(), 0);
    ASSERT_TRUE(table.moveToKey({150}));
    EXPECT_EQ(grid.currentIndex().row(), 149);
    EXPECT_EQ(rows(), dishes) << "the cursor goes beyond it";
    EXPECT_EQ(cell(dishes - 1, 1), u"400"_s);
    QTest::keyClick(&grid, Qt::Key_End);
    EXPECT_EQ(grid.currentIndex().row(), dishes - 1);
    EXPECT_EQ(table.integer(u"DishID"), dishes);
}

TEST_F(ListGridTest, aRowOfTheFirstPageIsTheOneThatIsShownAndKeysThatLeaveThePageWait)
{
    Engine::Query query(store.database(), u"SELECT DishID, Name FROM Dish"_s);
    query.setFirstPageSql(query.sql() + u" WHERE DishID > 1"_s);
    query.setKeyFields(u"DishID"_s);
    query.setOrderBy(u"Name"_s);
    query.onLongRead([](const Engine::DataSet::ReadOver &) { ADD_FAILURE() << "nothing to wait for"; }, dishes - 1);
    const std::pair<QList<Qt::Key>, int> lists[] = {
        {{}, 2}, {{Qt::Key_End, Qt::Key_Up}, dishes - 2}, {{Qt::Key_End, Qt::Key_Up, Qt::Key_Escape}, 2}};
    for (const auto &[keys, row] : lists) {
        SCOPED_TRACE(keys.size());
        query.open();
        ListGrid list;
        list.setDataSet(query, {{u"Name"_s, u"Name"_s, 200}}, guard);
        QStatusBar bar;
        new ListStatus(list, bar);
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_TRUE(list.tableModel()->isPartial());
        const auto *status = child<QLabel>(bar, "lblRows");
        EXPECT_TRUE(comesTrue([status] { return status->text() == "Reading the rows of the list"_L1; }));
        EXPECT_EQ(list.currentIndex().row(), 1);
        EXPECT_EQ(query.integer(u"DishID"), 100) << "behind 10, where the first one has not come yet";
        for (const Qt::Key key : keys)
            QTest::keyClick(&list, key);
        showActive(list);
        EXPECT_TRUE(comesTrue([&list] { return list.model()->rowCount() == dishes; }));
        EXPECT_EQ(list.currentIndex().row(), row);
        EXPECT_EQ(query.recordIndex(), list.currentIndex().row());
        EXPECT_EQ(status->text(), u"%1 of 200 rows"_s.arg(row + 1));
        query.close();
    }
}

TEST_F(ListGridTest, aLongListInAnotherOrderBeginsWithItsFirstRows)
{
    Engine::TableReader dishList(store.database(), u"Dish"_s);
    dishList.onLongRead([](const Engine::DataSet::ReadOver &) { ADD_FAILURE() << "nothing to wait for"; },
                        dishes - 1);
    dishList.open();
    ListGrid list;
    list.setDataSet(dishList, {{u"Name"_s, u"Name"_s, 200}}, guard);
    showActive(list);
    for (const bool descending : {true, false}) {
        EXPECT_TRUE(comesTrue([&list] { return list.model()->rowCount() == dishes; }));
        QTest::keyClick(&list, Qt::Key_End);
        dishList.setSorting({u"Name"_s, descending});
        EXPECT_TRUE(list.tableModel()->isPartial());
        EXPECT_EQ(list.currentIndex().row(), 0);
        EXPECT_EQ(list.verticalScrollBar()->value(), 0);
        EXPECT_EQ(cellOf(list, 0, 0), descending ? u"Dish 99"_s : u"Dish 1"_s);
        EXPECT_EQ(dishList.integer(u"DishID"), descending ? 99 : 1);
    }
}

// Rows of a narrowed list that stand far down its order, and none.
TEST_F(ListGridTest, aListBeginsWithNoRowsWhereTheyAreFarDown)
{
    constexpr int more = 12'000;
    store.fill(u"Dish (DishID, DishNo, Name)"_s, u"i + 1000, 'more', 'E'"_s, more);
    store.fill(u"Dish (DishID, DishNo, Name)"_s, u"i + 20000, 'last', 'F' || (1000 + i)"_s, 300);
    Engine::TableReader dishList(store.database(), u"Dish"_s);
    dishList.onLongRead([](const Engine::DataSet::ReadOver &) { ADD_FAILURE() << "nothing to wait for"; }, more);
    dishList.open();
    ListGrid list;
    list.setDataSet(dishList, {{u"Name"_s, u"Name"_s, 200}}, guard);
    list.setHint(u"None"_s);
    QStatusBar bar;
    new ListStatus(list, bar);
    qApp->setProperty("countsJourneys", true); // what watches models reads all their keys
    showActive(list);
    qApp->setProperty("countsJourneys", {});
    int chosen = 0;
    QObject::connect(&list, &ListGrid::chosen, &list, [&chosen] { ++chosen; });
    dishList.setSorting({u"Name"_s});
    const auto press = [&list](Qt::Key key) { QTest::keyClick(&list, key); };
    const struct
    {
        QString filter;
        std::function<void()> meanwhile;
        int row, key, chosen;
        QString status, hint = {};
    } lists[] = {
        {u"DishNo = 'last'"_s, [&] { press(Qt::Key_Down), press(Qt::Key_Return); }, 1, 20'002, 1,
         u"2 of 300 rows (filtered)"_s},
        {u"DishNo = 'none'"_s, [&] { press(Qt::Key_Return); }, -1, 0, 1, u"No rows (filtered)"_s, u"None"_s},
        {u"DishNo >= 'last' AND Name > 'F'"_s, [&] { press(Qt::Key_End); }, 299, 20'300, 0,
         u"300 of 300 rows (filtered)"_s},
        {u"DishNo = 'last' AND DishID > 20100"_s, [&] { EXPECT_TRUE(dishList.moveToKey({20'200})); }, 99, 20'200, 0,
         u"100 of 200 rows (filtered)"_s},
        {u"DishNo = 'last' AND DishID > 20200"_s, [&] { list.tableModel()->readRest(); }, 0, 20'201, 0,
         u"1 of 100 rows (filtered)"_s},
        {u"DishNo = 'last' AND DishID > 20290"_s,
         [&] { press(Qt::Key_End), dishList.setFilter(u"DishNo = 'last' AND DishID > 20295"_s); }, 0, 20'296, 0,
         u"1 of 5 rows (filtered)"_s}};
    for (const auto &[filter, meanwhile, row, key, timesChosen, status, hint] : lists) {
        SCOPED_TRACE(qPrintable(filter));
        dishList.setFilter(filter);
        dishList.setFiltered(true);
        EXPECT_EQ(list.model()->rowCount(), 0);
        EXPECT_TRUE(list.tableModel()->isPartial());
        EXPECT_EQ(list.shownHint(), QString()) << "who knows";
        chosen = 0;
        meanwhile();
        EXPECT_EQ(chosen, 0) << "there is nothing to be chosen yet";
        EXPECT_TRUE(comesTrue([&list] { return !list.tableModel()->isPartial(); }));
        EXPECT_TRUE(comesTrue([&] { return list.currentIndex().row() == row; }));
        EXPECT_EQ(dishList.integer(u"DishID"), key);
        EXPECT_EQ(chosen, timesChosen);
        EXPECT_EQ(child<QLabel>(bar, "lblRows")->text(), status);
        EXPECT_EQ(list.shownHint(), hint);
    }

    ListCommands commands(
        list, [](const std::function<void()> &run) { run(); }, &list);
    QMenu menu;
    commands.addTo(menu,
                   {{.name = u"mnuCard"_s,
                     .caption = u"Card"_s,
                     .run = [] {},
                     .available = [&dishList] { return !dishList.isEmpty(); }}});
    commands.finish(nullptr);
    for (const bool isThere : {false, true}) { // all in the first page
        dishList.setFilter(isThere ? u"DishID = 1"_s : u"DishID = 0"_s);
        EXPECT_TRUE(comesTrue([&list] { return !list.tableModel()->isPartial(); }));
        EXPECT_EQ(menu.actions().constFirst()->isEnabled(), isThere);
    }
}

TEST_F(ListGridTest, manyRowsAreSelectedWhileTheRecordIsOne)
{
    showAll();
    const auto expect = [this](const QString &rows) {
        EXPECT_EQ(selected(), rows);
        EXPECT_EQ(table.recordIndex(), grid.currentIndex().row()) << rows.toStdString();
    };
    click(3);
    expect(u"3: 3"_s);
    click(5, Qt::ShiftModifier);
    expect(u"3-5: 5"_s);
    click(8, Qt::ControlModifier);
    expect(u"3-5 8: 8"_s);
    QTest::mouseClick(&grid, Qt::LeftButton, {}, {399, 399}); // beside the rows
    expect(u"3-5 8: 8"_s);
    type("<Down>");
    expect(u"9: 9"_s);
    table.moveToKey({101});
    expect(u"100: 100"_s);
    type("<Shift+Down>");
    expect(u"100-101: 101"_s);
    type("<Shift+End>");
    expect(u"100-199: 199"_s);
    type("<Ctrl+Home>");
    expect(u"0: 0"_s);
    type("<Ctrl+A>");
    expect(u"0-199: 0"_s);
    table.refresh();
    expect(u"0: 0"_s);
}

TEST_P(ListSearchTest, typedBeginningIsFoundInTheOrderedColumn)
{
    store.execute(u"INSERT INTO Dish (DishID, DishNo, Name) VALUES (900, 'x1', 'Crème brûlée'), "
                  "(901, 'x2', 'crêpe'), (902, 'x3', '50% \"off\" [a]''s'), (903, 'x4', '🍜 soup')"_s);
    table.setIndex(u"NAME1"_s);
    table.refresh();
    showActive(grid);
    const std::tuple<QString, QString, bool> cases[] = {
        // the row that is come to, and whether it is found
        {u"dish 1"_s, u"Dish 1"_s, true},
        {u"DISH 19"_s, u"Dish 19"_s, true},
        {u"cr"_s, u"Crème brûlée"_s, true},
        {u"crê"_s, u"crêpe"_s, true},
        {u"50% \"off\" [a]'"_s, u"50% \"off\" [a]'s"_s, true},
        {u"🍜"_s, u"🍜 soup"_s, true},
        {u"dish 7x"_s, u"Dish 7"_s, false}, // stays on what the last letter that fitted had found
    };
    for (const auto &[typed, reached, found] : cases) {
        grid.search()->end();
        table.first();
        type(typed);
        EXPECT_EQ(name(), reached) << qPrintable(typed);
        EXPECT_EQ(grid.search()->text(), typed);
        EXPECT_EQ(grid.search()->isFound(), found) << qPrintable(typed);
        EXPECT_EQ(grid.currentIndex().row(), table.recordIndex());
    }
    table.setIndex(u"DISHNO"_s);
    EXPECT_EQ(grid.search()->text(), QString()) << "another order, another search";
    type("d015");
    EXPECT_EQ(name(), u"Dish 150"_s) << "numbers are found without the shift key";
}

// In whatever column they show, once none begins with them in the one that the list is ordered by.
TEST_P(ListSearchTest, wordsAreFoundAnywhereInTheShownColumns)
{
    store.execute(u"INSERT INTO Dish (DishID, DishNo, Name) VALUES (900, 'x1', 'Zuppa crème brûlée'), "
                  "(901, 'x2', 'Zuppa with 1 BRULEE')"_s);
    table.setIndex(u"NAME1"_s);
    table.refresh();
    showActive(grid);
    const auto reached = [this](const QString &typed) {
        grid.search()->end();
        table.first();
        type(typed);
        EXPECT_TRUE(comesTrue([this] { return !grid.search()->isLooking(); }));
        EXPECT_EQ(grid.currentIndex().row(), table.recordIndex());
        return grid.search()->isFound() ? table.integer(u"DishID") : 0;
    };
    EXPECT_EQ(reached(u"brulee"_s), 900);
    press(Qt::Key_F3);
    EXPECT_EQ(table.integer(u"DishID"), 901) << "the next one";
    press(Qt::Key_F3);
    EXPECT_EQ(table.integer(u"DishID"), 900) << "round again";
    EXPECT_EQ(reached(u"brûlée zup"_s), 900);
    EXPECT_EQ(reached(u"398 dish"_s), 199) << "a figure that is calculated";
    EXPECT_EQ(reached(u"D0150"_s), 150) << "a number in another column";
    EXPECT_EQ(reached(u"nowhere"_s), 0);
    table.setIndex(QString()); // by key, which is no text and not shown
    EXPECT_EQ(reached(u"ish 20"_s), 10) << "Dish 10, twice 10";
}

ON_BOTH_STORES(ListSearchTest);

TEST_F(ListGridTest, typedTextIsShortenedAndEnds)
{
    table.setIndex(u"NAME1"_s);
    showAll();
    type("dish 17");
    EXPECT_EQ(table.integer(u"DishID"), 17);
    type("9");
    EXPECT_EQ(table.integer(u"DishID"), 179);
    type("<Backspace><Backspace>");
    EXPECT_EQ(grid.search()->text(), u"dish 1"_s);
    EXPECT_EQ(table.integer(u"DishID"), 1);
    grid.search()->end();

    const std::tuple<const char *, std::function<void()>> ends[] = {
        {"escape", [] { press(Qt::Key_Escape); }},
        {"mouse", [&] { click(4); }},
        {"focus", [&] { grid.clearFocus(); }},
    };
    for (const auto &[what, end] : ends) {
        grid.setFocus();
        type("dish 19");
        EXPECT_EQ(grid.search()->text(), u"dish 19"_s) << what;
        end();
        EXPECT_EQ(grid.search()->text(), QString()) << what;
    }
}

// The number takes what is left over.
TEST_F(ListGridTest, lackOfWidthIsShared)
{
    grid.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    showAll();
    const auto widths = [this](int room) {
        grid.resize(room + 2 * grid.frameWidth(), 300);
        QList<int> all;
        for (int i = 0; i < 3; ++i)
            all << grid.columnWidth(i);
        return all;
    };
    const QList<int> wanted{scaled(&grid, 200), scaled(&grid, 120), scaled(&grid, 120)};
    const int all = std::accumulate(wanted.begin(), wanted.end(), 0);
    EXPECT_EQ(widths(all + 50), (QList<int>{wanted[0], wanted[1], wanted[2] + 50}));
    const QList<int> narrow = widths(all - 20);
    EXPECT_EQ(std::accumulate(narrow.begin(), narrow.end(), 0), all - 20);
    const QList<int> least = widths(1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_LT(narrow[i], wanted[i]);
        EXPECT_LT(least[i], narrow[i]);
        EXPECT_GE(least[i], grid.fontMetrics().horizontalAdvance(u"Dish descrip"_s));
    }
    EXPECT_GT(grid.horizontalScrollBar()->maximum(), 0) << "the rest is scrolled";
    press(Qt::Key_Right);
    EXPECT_GT(grid.horizontalScrollBar()->value(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(grid.horizontalScrollBar()->value(), 0);
    grid.horizontalHeader()->resizeSection(1, 150); // by the user
    EXPECT_EQ(widths(1), (QList<int>{least[0], 150, least[2]}));
    EXPECT_EQ(columnWidths(grid), u"Name=200.00 Twice=%1"_s.arg(150 / fontFactor(&grid), 0, 'f', 2));
    EXPECT_EQ(widths(2 * all)[1], 150);
}
