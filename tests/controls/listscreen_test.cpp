#include "controls/windows/filechoice.h"
#include "tests/controls/itemlist.h"
#include "tests/support/files.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ListScreenTest : ScreenTest
{
    ListScreenTest()
    {
        kitchen.execute(u"UPDATE Item SET UnitPrice = 1234.5, Suspended = false WHERE ItemID = 1"_s);
        context->settings = &settings;
        context->chooseFileToSave = [this](QWidget *, const FileChoice &choice) {
            proposed << choice.folder + u'|' + choice.name;
            return proposed.size() == 1 ? chosen : QString(); // gives up when asked again
        };
        mainWindow->resize(300, 200);
        mainWindow->show();
    }

    ItemList &open()
    {
        auto *screen = new ItemList(*context, mainWindow.get());
        showActive(*screen);
        settle();
        return *screen;
    }
    static void refresh(const ItemList &screen) { screen.command(u"mnuRefresh"_s)->trigger(); }
    static QString status(const ListScreen &screen, const char *label = "lblRows")
    {
        return child<QLabel>(screen, label)->text();
    }

    QString chosen; // by the user, to save in
    QStringList proposed; // folder and name, each time that a file was asked for
};

} // namespace

TEST_F(ListScreenTest, statusLineAndHintSayWhatThereIs)
{
    ItemList &items = open();
    const auto expect = [&](const QString &rows, const QString &hint = {}) {
        EXPECT_EQ(status(items), rows);
        EXPECT_EQ(items.list().shownHint(), hint) << rows.toStdString();
    };
    type("<End><Shift+Up>");
    expect(u"3 of 4 rows, 2 selected"_s);
    items.applyFilter(u"(ItemID = 77)"_s);
    expect(u"No rows (filtered)"_s, u"No records match the filter."_s);
    items.resetFilter();
    kitchen.execute(u"DELETE FROM Item"_s);
    refresh(items);
    expect(u"No rows"_s, u"No records yet. Press New to add one."_s);
    kitchen.execute(u"ALTER TABLE Item RENAME TO Away"_s);
    prompts.onError = [] { settle(); }; // what is painted while the box is open cannot be read either
    refresh(items); // fails
    expect({});
    settle();
    EXPECT_EQ(prompts.said.size(), 1) << prompts.said.join(u'\n').toStdString();
    kitchen.execute(u"ALTER TABLE Away RENAME TO Item"_s);
}

TEST_F(ListScreenTest, typedSearchIsShown)
{
    ItemList &items = open();
    type("b1");
    EXPECT_EQ(status(items, "lblSearch"), u"Search: b1"_s);
    type(u"<b>"_s);
    EXPECT_EQ(status(items, "lblSearch"), u"Search: b1<b> (not found)"_s);
    items.applyFilter(u"(ItemID < 3)"_s);
    type("b1");
    EXPECT_EQ(status(items, "lblSearch"), u"Search: b1 (not found in the filtered rows)"_s);
}

TEST_F(ListScreenTest, commandsFollowTheRecord)
{
    ItemList &items = open();
    const QAction *drop = items.command(u"mnuDropSelected"_s);
    const auto *button = child<QPushButton>(items, "btnDrop");
    const auto isOffered = [&] {
        const QList<QAction *> popup = items.list().actions();
        const auto entry = std::ranges::find(popup, u"Drop"_s, &QAction::text);
        EXPECT_EQ(button->isEnabled(), drop->isEnabled());
        EXPECT_EQ(entry != popup.end() && (*entry)->isEnabled(), drop->isEnabled());
        return drop->isEnabled();
    };
    press(Qt::Key_End);
    EXPECT_FALSE(isOffered()) << "on the suspended item";
    press(Qt::Key_Up);
    EXPECT_TRUE(isOffered());
    kitchen.execute(u"UPDATE Item SET Suspended = true WHERE ItemID = 3"_s); // by somebody else
    refresh(items);
    EXPECT_FALSE(isOffered());
    type("<Home><Alt+R>");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(items.dropped, QList<int>{1}) << "by the keys of menu and sub-menu";
}

TEST_F(ListScreenTest, keyboardComesBackToTheRows)
{
    const ItemList &items = open();
    QTest::mouseClick(child<QPushButton>(items, "btnNew"), Qt::LeftButton);
    EXPECT_EQ(focusName(), u"DBGrid1"_s) << "a click on a button";
    press(Qt::Key_R, Qt::AltModifier);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Escape}) { // on to the next menu, and out of it
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), key);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(focusName(), u"DBGrid1"_s) << "Escape in a menu";
}

TEST_F(ListScreenTest, rowsAreCopiedAsSpreadsheetsPasteThem)
{
    kitchen.execute(u"UPDATE Item SET ItemDescription = 'tab\there \"quoted\"' WHERE ItemID = 2"_s);
    ItemList &items = open();
    EXPECT_TRUE(items.list().actions().contains(items.command(u"mnuCopyText"_s))) << "in the pop-up menu";
    type("<Ctrl+C>");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"A10\tApples\t1,234.50\tNo\n"_s);
    type("<Shift+Down><Ctrl+C>");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              u"Item no.\tDescription\tUnit Price\tSuspended\nA10\tApples\t1,234.50\tNo\n"
              "A11\t\"tab\there \"\"quoted\"\"\"\t\tNo\n"_s);
}

TEST_F(ListScreenTest, listIsSavedAsItStandsOrNotAtAll)
{
    ItemList &items = open();
    items.applyFilter(u"(ItemID < 4)"_s);
    QAction *save = items.command(u"mnuSaveCsv"_s);
    save->trigger();
    EXPECT_EQ(std::exchange(proposed, {}), QStringList(u"|Items.csv"_s));
    const QTemporaryDir folder;
    chosen = folder.filePath(u"my items.csv"_s);
    save->trigger();
    const QByteArray saved = "Item no.,Description,Unit Price,Suspended\r\nA10,Apples,1234.5,false\r\n"
                             "A11,Bread,,\r\nB1,apricots,,false\r\n";
    EXPECT_EQ(contentOf(chosen), saved);
    EXPECT_EQ(items.statusBar()->currentMessage(), u"3 rows saved as "_s + chosen);
    const QString file = std::exchange(chosen, QString());
    proposed.clear();
    open().command(u"mnuSaveCsv"_s)->trigger();
    EXPECT_EQ(std::exchange(proposed, {}), QStringList(folder.path() + u"|Items.csv"_s))
        << "the folder is remembered";
    chosen = file;

    kitchen.execute(u"ALTER TABLE Item RENAME TO Away"_s);
    refresh(items);
    prompts.take();
    save->trigger();
    EXPECT_TRUE(prompts.last().startsWith("error: "_L1));
    EXPECT_EQ(contentOf(chosen), saved) << "the old file stays";
    kitchen.execute(u"ALTER TABLE Away RENAME TO Item"_s);
    refresh(items);
    prompts.take();

    proposed.clear();
    chosen = folder.filePath(u"nowhere/items.csv"_s);
    save->trigger();
    EXPECT_TRUE(prompts.take().value(0).contains(chosen));
    EXPECT_EQ(proposed, (QStringList{folder.path() + u"|Items.csv"_s, folder.path() + u'|' + chosen}))
        << "what was typed is offered again";
}

TEST_F(ListScreenTest, SortsByItsTitles)
{
    kitchen.execute(u"UPDATE Item SET UnitPrice = 7 WHERE ItemID = 2"_s);
    ItemList &screen = open();
    QHeaderView &titles = *screen.list().horizontalHeader();
    const auto clickOn = [&titles](int column) {
        const int x = titles.sectionViewportPosition(column) + 10;
        QTest::mouseClick(titles.viewport(), Qt::LeftButton, {}, {x, titles.height() / 2});
        settle();
    };
    const auto shown = [&] {
        QStringList numbers;
        for (int row = 0; row < screen.list().model()->rowCount(); ++row)
            numbers << cellOf(screen.list(), row, 0);
        const QString arrow = titles.sortIndicatorOrder() == Qt::AscendingOrder ? u"up"_s : u"down"_s;
        return numbers.join(u' ') + u' ' + QString::number(titles.sortIndicatorSection()) + arrow;
    };
    clickOn(2);
    EXPECT_EQ(shown(), u"B1 X9 A11 A10 2up"_s);
    clickOn(2);
    EXPECT_EQ(shown(), u"A10 A11 B1 X9 2down"_s);
    screen.command(u"mnuSortByItemDescription"_s)->trigger();
    EXPECT_EQ(shown(), u"A10 B1 A11 X9 1up"_s) << "from the menu, small letters like capitals";
    press(Qt::Key_Y);
    EXPECT_EQ(screen.dataSet().text(u"ItemNo"), u"X9"_s) << "typing finds in the column that it is sorted by";
    clickOn(0);
    EXPECT_EQ(shown(), u"A10 A11 B1 X9 0up"_s);
    EXPECT_EQ(screen.dataSet().sorting(), Engine::Sorting()) << "that is its own order";
}
