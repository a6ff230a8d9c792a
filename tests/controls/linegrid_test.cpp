#include "base/formats.h"
#include "controls/grids/linegrid.h"
#include "tests/controls/controltest.h"
#include "tests/support/givenrules.h"

#include <QAbstractSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const Engine::TableLayout layout = madeLayout(
    u"Line"_s, u"LineID integer, Quantity float, ItemNo text 10, Cost float, Name text 20"_s, u"LineID primary"_s);

// Two lines between a box and a button: 1, "A", cost 10 and 2, "B", cost 20. A line must have an item.
struct LineGridTest : ControlTest
{
    LineGridTest()
        : ControlTest(layout)
    {
        store.execute(
            u"INSERT INTO Line (LineID, Quantity, ItemNo, Cost) VALUES (1, 1, 'A', 10), (2, 2, 'B', 20)"_s);
        lines.open();
        lines.field(u"Quantity").format = quantityFormat();
        rules.aroundInsert = [this](const auto &begin) {
            begin();
            lines.setDefault(u"LineID", store.found(u"SELECT count(*) + 1 FROM Line"_s).toInt());
        };
        rules.aroundPost = [this](const auto &save) {
            lines.text(u"ItemNo").isEmpty() ? throw RuleError(u"No item"_s, u"ItemNo"_s) : save();
        };
        lines.rules = &rules;
        box->setObjectName(u"before"_s);
        button->setObjectName(u"after"_s);
        grid->setObjectName(u"grid"_s);
        auto *column = new QVBoxLayout(&window);
        for (QWidget *widget : QWidgetList{box, grid, button})
            column->addWidget(widget);
        window.resize(500, 300);
    }

    void show(const LineOptions &options = {})
    {
        const auto begin = [this] { lines.isEditing() ? void() : lines.edit(); };
        const auto search = [this](const QString &, const QString &typed) {
            searched << lines.text(u"ItemNo") + u':' + typed;
            if (!found.isEmpty())
                lines.set(u"ItemNo", found);
            return !found.isEmpty();
        };
        grid->setLines(lines,
                       {{u"Quantity"_s, u"Quantity"_s},
                        {u"ItemNo"_s, u"Item no."_s},
                        {u"Cost"_s, u"Cost"_s},
                        {u"Name"_s, u"Name"_s}},
                       {.begin = begin,
                        .append = [this] { lines.insert(); },
                        .remove = [this] { lines.remove(); },
                        .enter = [this](const QString &field, const QString &text) { lines.setText(field, text); },
                        .search = search,
                        .searchColumns = {u"ItemNo"_s}},
                       toColumns, options);
        showActive(window);
        grid->setFocus();
    }
    void click(int row, int column)
    {
        clickOn(*grid, row, column);
        QCoreApplication::processEvents();
    }
    // "1,2" in the grid, else the widget that has the focus.
    QString cursor() const { return grid->hasFocus() || grid->hasEntry() ? cursorOf(*grid) : focusName(); }
    QString cursorAfter(const char *keys) const
    {
        type(keys);
        return cursor();
    }
    QString entry() const
    {
        return grid->hasEntry() ? QApplication::focusWidget()->property("text").toString() : u"-"_s;
    }
    int rows() const { return grid->model()->rowCount(); }

    Engine::Table &lines = table;
    GivenRules rules;
    QWidget window;
    QLineEdit *box = new QLineEdit;
    LineGrid *grid = new LineGrid;
    QPushButton *button = new QPushButton;
    const Guard toColumns{prompts,
                          [this](const QString &column) { return grid->showColumn(column) ? grid : nullptr; }};
    QStringList searched; // the item of the line and what was typed, each time
    QString found; // what the search chooses; empty: nothing
};

} // namespace

TEST_F(LineGridTest, keysGoFromCellToCellAndOut)
{
    show({.passedByEnter = {u"Cost"_s}});
    const std::tuple<const char *, const char *, QString> steps[] = {
        {"Enter passes over the cost", "<Return><Return>", u"0,3"_s},
        {"to the next line", "<Return>", u"1,0"_s},
        {"Shift+Tab back to the line before", "<Backtab>", u"0,3"_s},
        {"and to the cost", "<Backtab>", u"0,2"_s},
        {"from there Enter goes on", "<Return>", u"0,3"_s},
        {"Tab through a line", "<Tab><Tab><Tab><Tab>", u"1,3"_s},
        {"and on to a new one", "<Tab><Tab><Tab><Tab>", u"2,3"_s},
        {"which is not needed", "<Tab>", u"after"_s},
        {"back in, where it was", "<Backtab>", u"1,3"_s},
        {"with text in the cell", "z<Backtab>y<Esc>", u"1,2"_s},
        {"out by the first cell", "<Backtab><Backtab><Up><Backtab>", u"before"_s},
    };
    for (const auto &[what, keys, expected] : steps)
        EXPECT_EQ(cursorAfter(keys), expected) << what;
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(store.rows(u"SELECT Name FROM Line ORDER BY LineID"_s), (QStringList{QString(), u"z"_s}));
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(LineGridTest, gridWithoutLinesSaysHowToBegin)
{
    store.execute(u"DELETE FROM Line"_s);
    lines.refresh();
    show();
    EXPECT_EQ(grid->shownHint(), u"No lines yet. Double-click here or press Page Down to enter the first one."_s);
    EXPECT_EQ(cursorAfter("<Backtab>"), u"before"_s);
    EXPECT_EQ(cursorAfter("<Tab><Tab>"), u"after"_s);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, grid->viewport()->rect().center());
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(grid->shownHint(), QString());
    press(Qt::Key_Escape);
    grid->setReadOnly(true);
    EXPECT_EQ(grid->shownHint(), QString());
}

TEST_F(LineGridTest, enteringAColumnByHandOpensItsSearch)
{
    show({.searchOnEntering = true});
    const auto searchedAfter = [&](const char *keys) {
        type(keys);
        QCoreApplication::processEvents();
        return std::exchange(searched, {}).join(u' ');
    };
    EXPECT_EQ(searchedAfter("<Return>"), u"A:"_s);
    EXPECT_EQ(searchedAfter("<Down>"), QString()) << "in the column";
    click(0, 1);
    EXPECT_EQ(searchedAfter(""), QString()) << "in the column";
    EXPECT_EQ(searchedAfter("<Backtab><Tab>"), u"A:"_s);
    EXPECT_EQ(searchedAfter("<Right><Left>"), u"A:"_s);
    EXPECT_EQ(searchedAfter("<Home>5<Return>"), u"A:"_s) << "out of an entry";
    click(1, 3);
    click(1, 1);
    EXPECT_EQ(searchedAfter(""), u"B:"_s);
    press(Qt::Key_Insert, Qt::ControlModifier);
    grid->appendLine();
    EXPECT_EQ(searchedAfter("7<Return><Right><Up>"), u":"_s) << "where a check leads";
    EXPECT_EQ(cursor(), u"2,1"_s);
    EXPECT_EQ(prompts.told(), u"error: No item");
    press(Qt::Key_Escape);
    EXPECT_EQ(rows(), 2) << "undone";
    type("<Esc>7");
    EXPECT_GT(child<QToolButton>(*grid, "btnSearch")->x(), 0) << "at the right end of the cell";
}

TEST_F(LineGridTest, leavingGoesBackToTheFirstLineOnceTheLineIsComplete)
{
    show({.backToStart = true});
    type("<Down><Right><Right>");
    box->setFocus();
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(0, 0));
    grid->setFocus();
    type("<PgDown>7");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THROW(grid->commitEntry(), SilentAbort) << "what the button does waits for the message";
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts.told(), u"error: No item");
    EXPECT_EQ(cursor(), u"2,1"_s);
    type("D");
    box->setFocus();
    EXPECT_EQ(lines.recordCount(), 3);
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(0, 0));
}

TEST_F(LineGridTest, helpTakesNothingOfWhatIsTyped)
{
    show();
    button->setProperty("keepsEntry", true);
    type("7");
    button->setFocus();
    EXPECT_EQ(lines.number(u"Quantity"), 7);
    grid->setFocus();
    type("x");
    button->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts.take().size(), 1);
    EXPECT_EQ(entry(), u"x"_s) << "to be mended";
}

TEST_F(LineGridTest, linesComeAndGoWhileACellIsTypedInto)
{
    show();
    EXPECT_EQ(cursorAfter("7<Ctrl+Ins>"), u"2,0"_s);
    EXPECT_EQ(store.found(u"SELECT Quantity FROM Line"_s), u"7 2") << "what has been typed is taken first";
    type("<Esc>8<Ctrl+Del>");
    EXPECT_EQ(rows(), 1);
    type("9");
    lines.close();
    EXPECT_EQ(entry(), u"-"_s) << "went with its cell";
}

TEST_F(LineGridTest, fixedLinesAndColumnsStay)
{
    show({.fixed = {u"ItemNo"_s}, .fixedLines = true});
    type("<Return>Z<F2>");
    EXPECT_EQ(entry(), u"-"_s);
    EXPECT_EQ(cursorAfter("<Ctrl+Del><Ctrl+Ins><PgDown><Right><Right><Return>"), u"1,3"_s);
    EXPECT_EQ(cursorAfter("<Tab>"), u"after"_s);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(store.found(u"SELECT ItemNo FROM Line"_s), u"A B");
}

TEST_F(LineGridTest, numbersAreSteppedUpToTheLimitOfTheirRow)
{
    show({.fixedLines = true,
          .steps = {{u"Quantity"_s, [this] { return LineSteps{.highest = lines.value(u"Cost").toDouble()}; }}}});
    const auto entryAfter = [this](const char *keys) {
        type(keys);
        return entry();
    };
    EXPECT_EQ(entryAfter("8.5"), u"8.5"_s);
    EXPECT_EQ(entryAfter("<Up>"), u"9.5"_s);
    EXPECT_EQ(entryAfter("<Up><Up>"), u"10"_s) << "the limit";
    qobject_cast<QAbstractSpinBox *>(QApplication::focusWidget())->stepDown(); // as its button does
    EXPECT_EQ(entryAfter(""), u"9"_s);
    EXPECT_EQ(entryAfter("11<Return>"), u"11"_s) << "refused";
    EXPECT_EQ(entryAfter("<Esc>4.25<Tab>"), u"-"_s) << "taken over";
    click(1, 0);
    EXPECT_EQ(entryAfter("11<Up>"), u"12"_s) << "the limit is the row's";
    EXPECT_EQ(entryAfter("<Tab>"), u"-"_s);
    lines.checkBrowseMode();
    EXPECT_EQ(prompts.told(), u"error: 'Quantity' must not be greater than 10");
    EXPECT_EQ(store.found(u"SELECT Quantity FROM Line ORDER BY LineID"_s), u"4.25 12");
}
