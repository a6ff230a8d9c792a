#include "controls/grids/linegrid.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/documentscreen.h"
#include "transactions/screens/documentscreens.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// What all screens of documents have by their base.
struct DocumentScreenTest : ScreenTest
{
    void open(const DocumentScreens &screens, int key = 0)
    {
        screen = static_cast<DocumentScreen *>(screens.makeDocument(*context, mainWindow.get()));
        if (key == 0)
            screen->newRecord();
        else
            EXPECT_TRUE(screen->openRecord(key));
        showActive(*screen);
        grid = child<LineGrid>(*screen, "DBGrid1");
    }
    // The document that has come up beside the given windows.
    static DocumentScreen *shownBeside(const QWidgetList &windows)
    {
        const QWidgetList all = QApplication::topLevelWidgets();
        for (QWidget *window : all) {
            auto *document = qobject_cast<DocumentScreen *>(window);
            if (document && document->isVisible() && !windows.contains(window))
                return document;
        }
        return nullptr;
    }
    QString quantities(const DocumentKind &kind)
    {
        return kitchen
            .rows(u"SELECT %1, %2 FROM %3 ORDER BY 1, Seq"_s.arg(
                kind.keyField, kind.entry.lineColumns.constFirst().field, kind.lineTable))
            .join(u' ');
    }

    QPointer<DocumentScreen> screen;
    LineGrid *grid = nullptr;
};

} // namespace

TEST_F(DocumentScreenTest, aPostedDocumentIsReversedFromItsListAndFromItsOwnScreen)
{
    for (const DocumentScreens &screens : documentScreens()) {
        const DocumentKind &kind = screens.kind;
        SCOPED_TRACE(qPrintable(kind.name));
        addDocument(kitchen, kind, 7, 1, {{1, u"2"_s, u"3"_s}, {2, u"-4"_s, u"1.5"_s}});
        open(screens, 7);
        EXPECT_FALSE(child<QPushButton>(*screen, "btnReverse")->isVisible()) << "it is not posted";
        screen->close();
        settle();
        QPointer<DocumentListScreen> list = screens.makeList(*context, mainWindow.get());
        showActive(*list);
        EXPECT_FALSE(list->command(u"mnuReverse"_s)->isEnabled());
        kitchen.execute(u"UPDATE %1 SET Posted = true"_s.arg(kind.headerTable));
        list->refreshList();
        EXPECT_TRUE(list->moveToKey(7));
        list->command(u"mnuReverse"_s)->trigger();
        QPointer<DocumentScreen> reversal = shownBeside({});
        ASSERT_TRUE(reversal);
        click(*reversal, "btnCancel");
        EXPECT_TRUE(isGone(reversal));
        EXPECT_EQ(quantities(kind), u"7|2 7|-4") << "it was only looked at";

        open(screens, 7);
        click(*screen, "btnReverse");
        reversal = shownBeside({screen});
        ASSERT_TRUE(reversal);
        EXPECT_TRUE(child<QLabel>(*reversal, "lblOpen")->isVisible());
        EXPECT_EQ(cellOf(*child<LineGrid>(*reversal, "DBGrid1"), 1, 0), u"4");
        const int key = kitchen.value(u"SELECT min(%1) FROM %2"_s, kind.keyField, kind.lineTable).toInt();
        click(*reversal, "btnOK");
        EXPECT_TRUE(isGone(reversal));
        EXPECT_EQ(prompts.told(), QString());
        EXPECT_EQ(quantities(kind), u"%1|-2 %1|4 7|2 7|-4"_s.arg(key));
        EXPECT_EQ(list->dataSet().integer(kind.keyField), key) << "the list has followed";
        screen->close();
        delete list; // closed, one may offer to post
        settle();
    }
}

TEST_F(DocumentScreenTest, controlZBringsTheLineTakenOutLastBack)
{
    for (const DocumentScreens &screens : documentScreens()) {
        SCOPED_TRACE(qPrintable(screens.kind.name));
        addDocument(kitchen, screens.kind, 7, 1, {{1, u"2"_s, u"3"_s}, {2, u"5"_s, u"1.5"_s}});
        open(screens, 7);
        auto *figures = child<QLabel>(*screen, "lblFigures");
        auto *undo = child<QAction>(*screen, "mnuUndoDelete");
        EXPECT_FALSE(undo->isEnabled());
        grid->setFocus();
        press(Qt::Key_Delete, Qt::ControlModifier);
        EXPECT_EQ(figures->text(), u"Line 1 (Apples) taken out. Undo: Ctrl+Z");
        EXPECT_TRUE(undo->isEnabled());
        EXPECT_EQ(quantities(screens.kind), u"7|5");
        press(Qt::Key_PageDown); // a new line in which nothing stands yet
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(quantities(screens.kind), u"7|5 7|2");
        EXPECT_EQ(grid->model()->rowCount(), 2);
        EXPECT_EQ(figures->text(), QString());
        EXPECT_FALSE(undo->isEnabled());
        screen->btnCancelClick();
        settle();
        EXPECT_EQ(prompts.told(), QString());
    }
}

// With the choice on, so many presses of Enter are enough for a line.
TEST_F(DocumentScreenTest, enterTakesTheOfferedCostAndPassesOverWhatIsKnownWhereThatIsWanted)
{
    context->settings = &settings;
    kitchen.addReceipt(70, 1, 2, {{1, 5, 4.2}});
    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s);
    const DocumentScreens &receipts = documentScreens().constFirst();
    open(receipts);
    type("V1<Return>f<PgDown>5<Return>A10<Return>");
    EXPECT_EQ(cursorOf(*grid), u"0,2") << "the next column, unless it is wanted otherwise";
    EXPECT_EQ(cellOf(*grid, 0, 3), u"last 4.20");
    press(Qt::Key_Return);
    EXPECT_EQ(child<QLabel>(*screen, "lblFigures")->text(),
              u"Last cost from this vendor: 4.20, on 14 Mar 26. Enter takes it.");
    type("3.5<Return>");
    EXPECT_EQ(cursorOf(*grid), u"1,0");
    EXPECT_EQ(child<QLabel>(*screen, "lblLinesTotal")->text(), u"Total: 17.50 Home");
    child<QAction>(*screen, "mnuPassesKnown")->trigger();
    type("2<Return>A10<Return><Return>"); // three
    EXPECT_EQ(cursorOf(*grid), u"2,0");
    type("7<Return><Return>"); // without an item there is nothing to pass over
    EXPECT_EQ(cursorOf(*grid), u"2,2");
    type("Bread<Return>1<Return>");
    click(*screen, "btnOK");
    EXPECT_TRUE(isGone(screen));
    EXPECT_EQ(prompts.told(), QString());
    EXPECT_EQ(
        kitchen.found(u"SELECT ItemID, QtyReceived, UnitCost FROM IRecDet WHERE ReceiptID <> 70 ORDER BY Seq"_s),
        u"1|5|3.5 1|2|4.2 2|7|1");

    open(documentScreens().constLast());
    EXPECT_TRUE(child<QAction>(*screen, "mnuPassesKnown")->isChecked()) << "in all documents";
    screen->btnCancelClick();
}
