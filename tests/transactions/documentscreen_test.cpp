#include "controls/grids/linegrid.h"
#include "master/barcodes.h"
#include "master/screens/itemsearchinv.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/documentscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/pasterowsscreen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// What all screens of documents have by their base.
struct DocumentScreenTest : ScreenTest
{
    void open(const DocumentScreens &screens, int key = 0)
    {
        screen = openRecord(static_cast<DocumentScreen *>(screens.makeDocument(*context, mainWindow.get())), key);
        grid = child<LineGrid>(*screen, "DBGrid1");
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

TEST_F(DocumentScreenTest, aPostedDocumentIsReversedFromItsList)
{
    for (const DocumentScreens &screens : documentScreens()) {
        const DocumentKind &kind = screens.kind;
        SCOPED_TRACE(qPrintable(kind.name));
        addDocument(kitchen, kind, 7, 1, {{1, u"2"_s, u"3"_s}, {2, u"-4"_s, u"1.5"_s}});
        kitchen.execute(u"UPDATE %1 SET Posted = true"_s.arg(kind.headerTable));
        QPointer<DocumentListScreen> list = screens.makeList(*context, mainWindow.get());
        showActive(*list);
        EXPECT_TRUE(list->moveToKey(7));
        list->command(u"mnuReverse"_s)->trigger();
        const QPointer reversal = findScreen<DocumentScreen>(kind.entry.screen);
        ASSERT_TRUE(reversal);
        EXPECT_TRUE(child<QLabel>(*reversal, "lblOpen")->isVisible());
        EXPECT_EQ(cellOf(*child<LineGrid>(*reversal, "DBGrid1"), 1, 0), u"4");
        const int key = kitchen.value(u"SELECT min(%1) FROM %2"_s, kind.keyField, kind.lineTable).toInt();
        click(*reversal, "btnOK");
        EXPECT_TRUE(isGone(reversal));
        EXPECT_EQ(prompts.told(), QString());
        EXPECT_EQ(quantities(kind), u"%1|-2 %1|4 7|2 7|-4"_s.arg(key));
        EXPECT_EQ(list->dataSet().integer(kind.keyField), key) << "the list has followed";
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
        grid->setFocus();
        press(Qt::Key_Delete, Qt::ControlModifier);
        EXPECT_EQ(quantities(screens.kind), u"7|5");
        press(Qt::Key_PageDown); // a new line in which nothing stands yet
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(quantities(screens.kind), u"7|5 7|2");
        EXPECT_EQ(grid->model()->rowCount(), 2);
        EXPECT_FALSE(child<QAction>(*screen, "mnuUndoDelete")->isEnabled());
        screen->btnCancelClick();
        settle();
        EXPECT_EQ(prompts.told(), QString());
    }
}

TEST_F(DocumentScreenTest, rowsOfASpreadsheetArePastedByKeys)
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    for (const DocumentScreens &screens : documentScreens()) {
        SCOPED_TRACE(qPrintable(screens.kind.name));
        addDocument(kitchen, screens.kind, 7, 1, {{1, u"2"_s, u"3"_s}});
        open(screens, 7);
        const auto paste = [&](Qt::KeyboardModifiers modifiers, const std::function<void(TfrmPasteRows &)> &step) {
            return whileOpen<TfrmPasteRows>([&] { press(Qt::Key_V, modifiers); }, step);
        };
        const auto isTakeable = [](const TfrmPasteRows &dialog) {
            return child<QPushButton>(dialog, "btnOK")->isEnabled();
        };
        clipboard.setText(u"A11\t8\t1.50\nA10\t9\t2\nA99\t1\t1\n"_s);
        grid->setFocus();
        EXPECT_TRUE(paste(Qt::ControlModifier, [&](TfrmPasteRows &dialog) {
            EXPECT_FALSE(isTakeable(dialog));
            EXPECT_EQ(cursorOf(*child<QTableView>(dialog, "grdRows")), u"2,0");
            EXPECT_EQ(child<QLabel>(dialog, "lblRows")->text(), u"1 of 3 rows cannot be taken, so none can.");
        }));
        EXPECT_EQ(quantities(screens.kind), u"7|2");

        clipboard.setText(u"A11\t8\t1.50\nA10\t9\t2\n"_s);
        typeIn(*screen, "editGLPeriod", "");
        EXPECT_TRUE(paste(Qt::ControlModifier | Qt::ShiftModifier, [&](TfrmPasteRows &dialog) {
            EXPECT_TRUE(isTakeable(dialog));
            auto *quantity = child<QComboBox>(dialog, "cboColumn2");
            quantity->setCurrentIndex(0);
            EXPECT_FALSE(isTakeable(dialog));
            quantity->setCurrentIndex(1);
            click(dialog, "btnOK");
        }));
        EXPECT_EQ(quantities(screens.kind), u"7|2 7|8 7|9");
        EXPECT_EQ(cursorOf(*grid), u"1,0");
        EXPECT_EQ(focusName(), u"DBGrid1");

        clipboard.setText(u"4\t4"_s);
        press(Qt::Key_F2);
        EXPECT_FALSE(paste(Qt::ControlModifier, [](TfrmPasteRows &) {})) << "into the cell";
        EXPECT_EQ(child<QLineEdit>(*screen, "editCell")->text(), u"4 4");
        press(Qt::Key_Escape);
        clipboard.setText(u"4"_s);
        EXPECT_FALSE(paste(Qt::ControlModifier, [](TfrmPasteRows &) {})) << "a single one";
        clipboard.clear();
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(has(prompts.told(), u"There are no rows to paste."_s));
        screen->btnCancelClick();
        settle();
        EXPECT_EQ(quantities(screens.kind), u"7|2");
        EXPECT_EQ(prompts.told(), QString());
    }
}

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
              u"Enter takes it. Last cost from this vendor: 4.20, on 14 Mar 26");
    type("3.5<Return>");
    EXPECT_EQ(cursorOf(*grid), u"1,0");
    EXPECT_EQ(child<QLabel>(*screen, "lblLinesTotal")->text(), u"17.50 Home");
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
}

// From an empty line to the next one, the search that opens at the item included.
TEST_F(DocumentScreenTest, aLineTakesAsFewPressesOfEnterAsItsColumnsAllow)
{
    context->settings = &settings;
    const auto pressesFor = [&](const DocumentScreens &screens) {
        open(screens);
        press(Qt::Key_PageDown);
        int presses = 0;
        bool isSearched = false;
        const auto enter = [&] {
            ++presses;
            press(Qt::Key_Return);
        };
        const auto begin = [&] {
            type("5");
            enter();
            EXPECT_TRUE(comesTrue([&] { return isSearched && grid->hasFocus(); }));
        };
        EXPECT_TRUE(whileOpen<TfrmItemSearchInv>(begin, [&](TfrmItemSearchInv &) {
            type("A10");
            enter();
            isSearched = true;
        }));
        constexpr int tooMany = 20;
        while (grid->model()->rowCount() == 1 && presses < tooMany)
            enter();
        EXPECT_EQ(cursorOf(*grid), u"1,0");
        EXPECT_EQ(quantities(screens.kind).section(u'|', 1), u"5");
        screen->btnCancelClick();
        settle();
        return presses;
    };
    QList<int> presses;
    for (const bool passesKnown : {false, true}) {
        settings.setValue(Settings::documentEntry, Settings::PassesKnown, passesKnown);
        for (const DocumentScreens &screens : documentScreens().mid(1))
            presses << pressesFor(screens);
    }
    EXPECT_EQ(presses, QList<int>({6, 4, 3, 3}));
}

TEST_F(DocumentScreenTest, whatIsNotOnHandIsTheSameWarningInTheLinesAndInTheSearch)
{
    kitchen.setStock(1, 1, -3, 2);
    const auto noteOf = [](const DataGrid &cells, const QString &field) {
        return static_cast<CellNote>(cells.model()->index(0, cells.columnOf(field)).data(cellNoteRole).toInt());
    };
    addDocument(kitchen, DocumentKinds::adjustment(), 7, 1, {{1, u"-1"_s}});
    open(documentScreens().constLast(), 7);
    EXPECT_EQ(noteOf(*grid, DocumentEntry::OnHand), CellNote::Lacking);
    EXPECT_EQ(noteOf(*grid, DocumentEntry::Afterwards), CellNote::Lacking);
    EXPECT_EQ(noteOf(*grid, Fields::Quantity), CellNote::Negative) << "one of its own";
    TfrmItemSearchInv search(*context, screen);
    showActive(search);
    EXPECT_EQ(noteOf(*child<DataGrid>(search, "DBGrid1"), ItemSearch::OnHand), CellNote::Lacking);
}

// Wherever the cursor is: into the line that wants an item, else into a new one.
TEST_F(DocumentScreenTest, aScannedCodeFindsItsColumn)
{
    addBarcode(kitchen.database(), 1, u"4006381333931"_s);
    addBarcode(kitchen.database(), 3, u"73513537"_s);
    const QString unknown = u"9783161484100"_s;
    for (const DocumentScreens &screens : documentScreens()) {
        SCOPED_TRACE(qPrintable(screens.kind.name));
        open(screens);
        grid->setFocus();
        press(Qt::Key_PageDown);
        scan(u"4006381333931"_s);
        EXPECT_EQ(cellOf(*grid, 0, 1), u"A10"_s);
        EXPECT_EQ(cursorOf(*grid), u"0,0"_s) << "where the quantity is still to be typed";
        if (const int cost = grid->columnOf(Fields::UnitCost); cost >= 0 && screens.kind.name == u"receipts")
            grid->enterText(grid->model()->index(0, cost), u"2"_s);
        grid->setCurrentIndex(grid->model()->index(0, 0));
        type("3"); // and no Enter
        scan(u"73513537"_s);
        EXPECT_EQ(rowOf(*grid, 0).mid(0, 2), (QStringList{u"3"_s, u"A10"_s}));
        EXPECT_EQ(rowOf(*grid, 1).mid(0, 2), (QStringList{QString(), u"B1"_s}));
        EXPECT_EQ(cursorOf(*grid), u"1,0"_s);
        prompts.ok = false;
        scan(unknown);
        EXPECT_EQ(prompts.told(),
                  u"Confirm: No item has the code '9783161484100'. Do you want to look for the item?"_s);
        EXPECT_EQ(rowOf(*grid, 1).mid(0, 2), (QStringList{QString(), u"B1"_s}));
        grid->setCurrentIndex(grid->model()->index(1, 1));
        scan(u"4006381333931"_s);
        EXPECT_EQ(cellOf(*grid, 1, 1), u"A10"_s) << "in its column it is as if it had been typed";
        EXPECT_EQ(grid->currentIndex().row(), 1);
        click(*screen, "btnCancel");
        settle();
    }

    prompts.ok = true;
    open(documentScreens().front());
    grid->setFocus();
    press(Qt::Key_PageDown);
    const auto scanIt = [&] { scan(unknown); };
    EXPECT_TRUE(whileOpen<TfrmItemSearchInv>(scanIt, [&](TfrmItemSearchInv &search) {
        EXPECT_EQ(child<QLineEdit>(search, "editFindItemNo")->text(), unknown);
        typeOver(search, "editFindItemNo", "A11<Return>");
    }));
    EXPECT_EQ(cellOf(*grid, 0, 1), u"A11"_s);
    EXPECT_EQ(itemOfBarcode(kitchen.database(), unknown), 2) << "it is known from now on";
    scan(u"0012"_s);
    EXPECT_EQ(cellOf(*grid, 0, 0), u"12"_s) << "no code, but figures that were typed fast";
    prompts.told();

    open(documentScreens().front());
    grid->setFocus();
    type("<PgDown>5<Return>");
    scan(unknown);
    EXPECT_EQ(rowOf(*grid, 0).mid(0, 2), (QStringList{u"5"_s, u"A11"_s}))
        << "into a first line that has been begun";
    EXPECT_EQ(prompts.told(), QString());
}

TEST_F(DocumentScreenTest, anAdjustmentStepsTheDateThatIsShownAndLeavesTheLinesForTheLocation)
{
    open(documentScreens().constLast());
    auto *date = child<QLineEdit>(*screen, "editAdjDate");
    const std::pair<const char *, QDate> cases[] = {
        {"022826+", QDate(2026, 3, 1)},
        {"+", context->data.today().addDays(1)},
        {"030126-", QDate(2026, 2, 28)},
    };
    for (const auto &[keys, shown] : cases) {
        typeOver(*screen, "editAdjDate", "");
        type(keys);
        press(Qt::Key_Tab);
        EXPECT_EQ(date->text(), QLocale::c().toString(shown, u"dd MMM yy")) << keys;
    }
    typeOver(*screen, "editAdjDate", "+"); // which the mask has no place for
    press(Qt::Key_Tab);
    EXPECT_EQ(date->text(), u"01 Mar 26"_s);
    child<QToolButton>(*screen, "btnWarehouse")->setEnabled(true); // there is no list of locations in these tests
    type("<PgDown><Backtab>");
    EXPECT_EQ(focusName(), u"cboWarehouse"_s);
    EXPECT_EQ(prompts.said, QStringList());
}
