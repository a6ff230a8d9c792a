#include "controls/screens/keptfiltersdialog.h"
#include "controls/screens/recordopener.h"
#include "master/screens/itemsfind.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentfilterscreen.h"
#include "transactions/screens/documentfindscreen.h"
#include "transactions/screens/documentpostscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/invhistory.h"
#include "transactions/screens/invhistoryfilter.h"
#include "transactions/screens/invreceipt.h"
#include "transactions/screens/invreceipts.h"
#include "transactions/screens/invtotals.h"
#include "transactions/screens/invtotalsfilter.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ListScreensTest : ScreenTest
{
    template <typename Screen> Screen &open()
    {
        auto *screen = openScreen<Screen>();
        list = screen;
        grid = child<QTableView>(*screen, "DBGrid1");
        return *screen;
    }
    // Does something in a dialog that a command of the list opens.
    template <typename Dialog> void inDialog(const QString &command, const std::function<void(Dialog &)> &step)
    {
        EXPECT_TRUE(whileOpen<Dialog>([&] { list->command(command)->trigger(); }, step));
    }

    void addReceipts()
    {
        kitchen.addReceipt(1, 1, 1, {{1, 5, 3.0}}, u"PO-1"_s);
        kitchen.addReceipt(2, 2, 2, {{2, 4, 1.0}});
        kitchen.addReceipt(3, 1, 2, {{1, 1, 3.0}});
        kitchen.execute(u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 2"_s);
    }

    QStringList row(int number) { return rowOf(*grid, number); }
    int rows() { return grid->model()->rowCount(); }
    // Its filter and how many rows that leaves.
    QString narrowed() { return u"%1: %2"_s.arg(list->dataSet().filter()).arg(rows()); }
    // What says above the rows that they are not all; nothing where they are.
    QString chip()
    {
        const auto *button = child<QAbstractButton>(*list, "btnFilterChip");
        return button->isVisible() ? button->text() : QString();
    }
    void click(const char *button) { QTest::mouseClick(child<QPushButton>(*list, button), Qt::LeftButton); }
    double count(const QString &rows) { return kitchen.number(u"SELECT count(*) FROM "_s + rows); }

    const std::function<void()> post = [this] { list->command(u"mnuPost"_s)->trigger(); };
    QPointer<ListScreen> list;
    QTableView *grid = nullptr;
};

} // namespace

TEST_F(ListScreensTest, findDialogsFindWordsWhereNothingHasTheNumber)
{
    addReceipts();
    kitchen.execute(u"UPDATE Vendor SET VendorName = 'Crème & Söhne' WHERE VendorID = 1"_s);
    kitchen.setStock(1, 1, 5, 1);
    kitchen.setStock(2, 2, 7, 1);
    open<TfrmInvReceipts>();
    inDialog<DocumentFindScreen>(u"mnuFind"_s, [&](DocumentFindScreen &dialog) {
        const auto *told = child<QLabel>(dialog, "lblFound");
        const auto rowAfter = [this](const char *keys) {
            type(keys);
            return grid->currentIndex().row();
        };
        EXPECT_EQ(rowAfter("1002<F3>"), 1) << "below the row of the list";
        typeOver(dialog, "editReceipt", "");
        type(u"sÖHne creme"_s);
        EXPECT_EQ(rowAfter("<Return>"), 0);
        EXPECT_EQ(prompts.told(), u"error: Receipt 'sÖHne creme' not found"_s);
        EXPECT_TRUE(begins(told->text(), u"These words are in row 1 of 3: 3/2026, 14 Mar 26, 1003, Crème"_s));
        EXPECT_EQ(rowAfter("<Return>"), 2) << "and the next, which the same key goes to";
        EXPECT_EQ(rowAfter("<Return>"), 0);
        EXPECT_EQ(prompts.told(), QString());
        EXPECT_EQ(rowAfter("nix<Return>"), 0);
        EXPECT_EQ(told->text(), u"No row of the list has these words."_s);
        EXPECT_EQ(rowAfter("1001<Return>"), 2);
        EXPECT_FALSE(dialog.isVisible());
    });

    open<TfrmInvTotals>();
    inDialog<TfrmItemsFind>(u"mnuFind"_s, [](TfrmItemsFind &) { type("freez<Return>"); });
    EXPECT_EQ(list->dataSet().text(u"WarehouseName"), u"Freezer"_s);
}

TEST_F(ListScreensTest, aDocumentHasOneScreenWhereverItIsOpenedFrom)
{
    open<TfrmInvReceipts>();
    click("btnEdit");
    QPointer receipt = opened<TfrmInvReceipt>(u"frmInvReceipt"_s);
    ASSERT_TRUE(receipt);
    EXPECT_EQ(receipt->windowTitle(), u"New Inventory Receipt"_s) << "nothing to edit";
    delete receipt;
    addReceipts();
    kitchen.addReceipt(0, 1, 1, {{1, 5, 3.0}}); // the key that a fresh counter begins with
    list->refreshList();
    ASSERT_TRUE(list->moveToKey(0));
    click("btnEdit");
    receipt = opened<TfrmInvReceipt>(u"frmInvReceipt"_s);
    ASSERT_TRUE(receipt);
    EXPECT_EQ(receipt->windowTitle(), u"Receipt 1000"_s);
    const auto windows = [] {
        return std::ranges::count_if(QApplication::topLevelWidgets(),
                                     [](QWidget *window) { return qobject_cast<TfrmInvReceipt *>(window); });
    };
    showActive(*list);
    click("btnEdit");
    EXPECT_EQ(windows(), 1);
    EXPECT_TRUE(comesTrue([&] { return receipt->isActiveWindow(); }));

    auto *history = new QWidget(mainWindow.get(), Qt::Window); // a window with rows of the document, and no list
    RecordOpener jump(*context, recordScreens(DocumentKinds::receipt()), history);
    showActive(*history);
    jump.open(0, u"Receipt 1000"_s);
    EXPECT_EQ(windows(), 1);
    EXPECT_TRUE(comesTrue([&] { return receipt->isActiveWindow(); }));
    EXPECT_THROW(jump.open(77, u"Receipt 77"_s), RuleError);

    receipt->close(); // so that there is one to be found
    settle();
    jump.open(3, u"Receipt 1003"_s);
    receipt = opened<TfrmInvReceipt>(u"frmInvReceipt"_s);
    typeIn(*receipt, "editReceiptNo", "1010");
    receipt->btnOKClick();
    EXPECT_EQ(row(grid->currentIndex().row()).at(2), u"1010"_s);
    EXPECT_TRUE(comesTrue([&] { return history->isActiveWindow(); })) << "where work goes on";
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(ListScreensTest, postingIsOfferedOnClosingAndTold)
{
    addReceipts();
    const auto confirm = [](DocumentPostScreen &) { press(Qt::Key_Return); };
    const auto history = std::make_unique<TfrmInvHistory>(*context, mainWindow.get());
    EXPECT_EQ(history->dataSet().recordCount(), 0);
    open<TfrmInvReceipts>();
    EXPECT_TRUE(whileOpen<DocumentPostScreen>(post, confirm));
    EXPECT_EQ(history->dataSet().recordCount(), 2) << "it has been read anew";
    EXPECT_EQ(list->statusBar()->currentMessage(), u"2 receipts posted"_s);
    EXPECT_EQ(row(0).last(), u"Yes"_s);
    kitchen.addReceipt(4, 1, 1, {{1, 5, 3.0}});
    settle();
    delete list;
    for (const bool pending : {true, false}) {
        open<TfrmInvReceipts>();
        const auto close = [&] {
            list->close();
            EXPECT_TRUE(isGone(list));
        };
        EXPECT_EQ(whileOpen<DocumentPostScreen>(close, confirm), pending);
    }
    EXPECT_EQ(count(u"IReceipt WHERE Posted = true"_s), 4);
}

TEST_F(ListScreensTest, postingTellsOfWhatTheListDoesNotShowAndWhoseItIs)
{
    addReceipts();
    QStringList said;
    context->say = [&](const QString &text) { said << text; };
    QString told;
    kitchen.execute(u"UPDATE IRecDet SET UnitCost = 0 WHERE ReceiptID = 1"_s);
    const auto read = [&](DocumentPostScreen &dialog) {
        const auto *notices = child<QListWidget>(dialog, "lstNotices");
        EXPECT_TRUE(comesTrue([&] { return notices->isVisible(); }));
        EXPECT_TRUE(ends(notices->item(0)->text(), u" has no cost"_s));
        const QLabel *label = child<QLabel>(dialog, "lblNotListed");
        told = label->isVisible() ? label->text() : QString();
        press(Qt::Key_Escape);
    };
    open<TfrmInvReceipts>();
    EXPECT_TRUE(whileOpen<DocumentPostScreen>(post, read));
    EXPECT_EQ(told, QString());

    const auto anna = kitchen.anotherUser();
    SpokenPrompts annas;
    const auto entry = openEntry(anna->database, DocumentKinds::receipt(), annas, 1);
    entry->header().edit();
    entry->header().set(u"PurchaseOrderNo", u"77"_s);
    entry->save();
    kitchen.addReceipt(5, 1, 2, {{1, 5, 3.0}});
    EXPECT_TRUE(whileOpen<DocumentPostScreen>(post, read));
    EXPECT_EQ(told, u"1 of them not in the list"_s);
    list->applyFilter(u"(WarehouseID = 2)"_s);
    EXPECT_TRUE(whileOpen<DocumentPostScreen>(post, read));
    EXPECT_TRUE(ends(told, u" not in the list, last saved by anna"_s));

    const auto confirm = [](DocumentPostScreen &) { press(Qt::Key_Return); };
    list->hide(); // as a command of the main window finds it
    told.clear();
    EXPECT_TRUE(whileOpen<DocumentPostScreen>([&] { list->mnuPostClick(); }, confirm));
    EXPECT_EQ(said, QStringList(u"3 receipts posted"_s));
}

TEST_F(ListScreensTest, aFigureThatItsColumnIsTooNarrowForShowsInTheStatusLine)
{
    kitchen.setStock(1, 1, 123'457'000, 0);
    kitchen.setStock(2, 1, 5, 2);
    open<TfrmInvTotals>();
    const auto *figures = child<QLabel>(*list, "lblFigures");
    EXPECT_EQ(row(0).at(3), u"123,457,000"_s);
    EXPECT_EQ(figures->text(), QString());
    grid->setColumnWidth(1, 5000); // so that there is no width to share
    grid->setColumnWidth(3, 30);
    EXPECT_EQ(figures->text(), u"Quantity On Hand: 123,457,000"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(figures->text(), QString());
}

TEST_F(ListScreensTest, totalsAreFilteredSortedAndFound)
{
    kitchen.setStock(1, 1, 10, 2);
    kitchen.setStock(1, 2, 2.5, 2);
    kitchen.setStock(2, 1, -3, 2);
    kitchen.setStock(3, 2, 7, 2);
    kitchen.setStock(99, 77, 5, 0); // neither is there any more
    open<TfrmInvTotals>();
    EXPECT_EQ(row(0).mid(0, 4).join(u'|'), u"|||5"_s);
    EXPECT_EQ(row(1).join(u'|'), u"A10|Apples|Freezer|2.5|5.00||"_s);
    const auto isWorth = [&](const QString &value) {
        return comesTrue([&] {
            const auto *sum = list->findChild<QLabel *>(u"lblSum"_s);
            return sum && sum->text() == value;
        });
    };
    EXPECT_TRUE(isWorth(u"33.00"_s));
    grid->setCurrentIndex(grid->model()->index(2, 0));
    list->command(u"mnuSortDescription"_s)->trigger();
    EXPECT_EQ(grid->currentIndex().row(), 0);
    EXPECT_EQ(row(4).at(1), u"apricots"_s);
    grid->setFocus();
    type("APR"); // searches where it is sorted, by the case-insensitive index of the items
    EXPECT_EQ(grid->currentIndex().row(), 4);

    inDialog<TfrmInvTotalsFilter>(u"mnuFilter"_s, [&](TfrmInvTotalsFilter &dialog) {
        type("a1<Return>");
        EXPECT_EQ(prompts.told(), u"error: Item no. 'a1' not found");
        type("a10<Tab>");
        EXPECT_EQ(child<LookupComboBox>(dialog, "cboItem")->currentText(), u"Apples"_s);
        typeIn(dialog, "cboWarehouse", "off<Return>");
    });
    EXPECT_EQ(narrowed(), u"(ItemID = 1) AND (WarehouseID = 1): 1"_s);
    EXPECT_TRUE(isWorth(u"20.00"_s));
    inDialog<TfrmInvTotalsFilter>(u"mnuFilter"_s, [&](TfrmInvTotalsFilter &dialog) {
        ::click(dialog, "btnReset");
        typeIn(dialog, "cboStock", "b");
        typeIn(dialog, "editNotMovedSince", "3/1/26<Return>");
    });
    EXPECT_EQ(narrowed(), u"(QtyOnHand < 0) AND (NOT (LastMoved >= '2026-03-01')): 1"_s);
    inDialog<TfrmItemsFind>(u"mnuFind"_s, [](TfrmItemsFind &) { type("B1<Return>"); });
    EXPECT_EQ(prompts.told(), u"error: 'apricots' not found") << "filtered out";
}

TEST_F(ListScreensTest, listsAreNarrowedToWhatWaits)
{
    for (const DocumentScreens &kind : documentScreens()) {
        SCOPED_TRACE(qPrintable(kind.kind.name));
        for (int id = 1; id <= 3; ++id)
            addDocument(kitchen, kind.kind, id, 1, {{1, u"1"_s}});
        kitchen.execute(
            u"UPDATE %1 SET Posted = true WHERE %2 = 2"_s.arg(kind.kind.headerTable, kind.kind.keyField));
        const std::unique_ptr<DocumentListScreen> documents(kind.makeList(*context, mainWindow.get()));
        documents->showWaiting();
        showActive(*documents);
        EXPECT_EQ(documents->dataSet().recordCount(), 2);
        EXPECT_TRUE(child<QRadioButton>(*documents, "optPostedNo")->isChecked()) << "its filter dialog says so";
        ASSERT_TRUE(documents->moveToKey(1));
        documents->showAgain();
        EXPECT_EQ(documents->dataSet().recordIndex() == 0, &kind.kind == &DocumentKinds::adjustment());
    }
}

// In the words of the dialog, whoever has made the choice, and gone with one click.
TEST_F(ListScreensTest, whatAListIsNarrowedToStandsAboveItsRows)
{
    addReceipts();
    kitchen.setStock(1, 1, -2, 1);
    open<TfrmInvReceipts>();
    const auto narrow = [&](const std::function<void(DocumentFilterScreen &)> &choose) {
        inDialog<DocumentFilterScreen>(u"mnuFilter"_s, [&](auto &dialog) {
            choose(dialog);
            ::click(dialog, "btnOK");
        });
    };
    narrow([](DocumentFilterScreen &dialog) {
        dialog.setKey(u"cboWarehouse"_s, 2);
        child<QRadioButton>(dialog, "optPostedNo")->click();
    });
    EXPECT_EQ(chip(), u"Location: Freezer, Posted: No"_s);
    EXPECT_EQ(narrowed(), u"(WarehouseID = 2) AND (Posted = false): 1"_s);
    QTest::mouseClick(child<QAbstractButton>(*list, "btnFilterChip"), Qt::LeftButton);
    EXPECT_EQ(chip(), QString());
    EXPECT_FALSE(list->dataSet().isFiltered());
    kitchen.execute(u"UPDATE IReceipt SET ReceiptDate = '2026-02-28' WHERE ReceiptID = 3"_s);
    narrow([](DocumentFilterScreen &dialog) {
        EXPECT_FALSE(dialog.isOn()) << "the dialog knows of it";
        typeIn(dialog, "editWords", "OFF po-");
    });
    EXPECT_EQ(chip(), u"Words: OFF po-"_s);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(row(0)[2], u"1001"_s) << "one word in the order's number, one in the location";
    narrow([](DocumentFilterScreen &dialog) {
        typeOver(dialog, "editWords", "");
        child<QCheckBox>(dialog, "chkDayFromAll")->click();
        typeOver(dialog, "editDayFrom", "3/1/26");
    });
    EXPECT_EQ(narrowed(), u"(ReceiptDate >= '2026-03-01'): 2"_s);
    list->applyFilter(u"(ReceiptID = 1)"_s);
    EXPECT_EQ(chip(), u"Filtered"_s) << "by what no dialog has words for";

    kitchen.setStock(2, 1, 0, 1);
    open<TfrmInvTotals>().showWaiting();
    EXPECT_EQ(chip(), u"Quantity On Hand: Below zero"_s);
    EXPECT_EQ(rows(), 1);
    auto &history = open<TfrmInvHistory>();
    history.filterBy({{u"ItemID"_s, 1}, {u"WarehouseID"_s, 1}});
    EXPECT_EQ(chip(), u"Item: Apples, Location: Office"_s);
    history.filterBy({{u"ItemID"_s, 1}});
    EXPECT_EQ(chip(), u"Item: Apples"_s);
}

TEST_F(ListScreensTest, filtersAreKeptByName)
{
    addReceipts();
    context->settings = &settings;
    kitchen.execute(u"INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (9, 'Attic')"_s);
    open<TfrmInvReceipts>();
    const auto narrow = [&](int location, const char *mark) {
        inDialog<DocumentFilterScreen>(u"mnuFilter"_s, [&](DocumentFilterScreen &dialog) {
            dialog.btnResetClick();
            dialog.setKey(u"cboWarehouse"_s, location);
            for (const char *button : {mark, "btnOK"})
                ::click(dialog, button);
        });
    };
    const auto manage = [&](const std::function<void(KeptFiltersDialog &)> &step) {
        showActive(*list);
        EXPECT_TRUE(whileOpen<KeptFiltersDialog>([] { type("<Ctrl+Shift+F>"); }, step));
    };
    const auto keepAs = [&](const QString &name) {
        manage([&](KeptFiltersDialog &) {
            type(name);
            press(Qt::Key_Return);
        });
    };
    const auto names = [&] {
        auto *menu = list->findChild<KeptFilterMenu *>();
        Q_EMIT menu->aboutToShow();
        QStringList shown;
        for (const QAction *entry : menu->actions().mid(0, menu->actions().size() - 1)) // the window's is the last
            shown << entry->text() + (entry->isChecked() ? u" *"_s : QString());
        return shown.join(u'|');
    };
    const auto choose = [&](int entry) { list->findChild<KeptFilterMenu *>()->actions()[entry]->trigger(); };
    const auto filter = [&] { return list->dataSet().isFiltered() ? list->dataSet().filter() : QString(); };

    manage([](KeptFiltersDialog &dialog) {
        EXPECT_FALSE(child<QPushButton>(dialog, "btnKeep")->isEnabled()) << "every row shows";
    });
    narrow(2, "optPostedNo");
    keepAs(u"Ü & \"%1\" 氷/\\"_s);
    narrow(9, "optPostedAll");
    keepAs(u"Attic"_s);
    EXPECT_EQ(names(), u"Attic *|Ü && \"%1\" 氷/\\|"_s) << "and a line";
    choose(1);
    EXPECT_EQ(filter(), u"(WarehouseID = 2) AND (Posted = false)"_s);
    EXPECT_EQ(chip(), u"Location: Freezer, Posted: No"_s);

    prompts.ok = false;
    keepAs(u"attic"_s);
    EXPECT_EQ(prompts.told(), u"Confirm: There is a filter 'Attic' already. Replace it?"_s);
    prompts.ok = true;
    kitchen.execute(u"DELETE FROM Warehse WHERE WarehouseID = 9"_s);
    names();
    choose(0);
    EXPECT_EQ(prompts.told(),
              u"error: The filter 'Attic' no longer fits this list: something that it asks for is gone "
              u"(Location: Attic). You can delete it."_s);
    EXPECT_EQ(filter(), u"(WarehouseID = 2) AND (Posted = false)"_s) << "and all is as it was";
    manage([&](KeptFiltersDialog &dialog) {
        child<QTableView>(dialog, "grdFilters")->selectRow(0);
        ::click(dialog, "btnDelete");
        child<QTableView>(dialog, "grdFilters")->selectRow(0);
        typeOver(dialog, "editName", "Open");
        ::click(dialog, "btnRename");
    });
    EXPECT_EQ(names(), u"Open *|"_s);

    delete list;
    open<TfrmInvReceipts>();
    EXPECT_EQ(names(), u"Open|"_s) << "kept beyond the window";
    manage([](KeptFiltersDialog &) { press(Qt::Key_Return); });
    EXPECT_EQ(filter(), u"(WarehouseID = 2) AND (Posted = false)"_s);
    settings.writable = false;
    keepAs(u"Other"_s);
    EXPECT_EQ(prompts.last(), u"error: Your settings cannot be written. The kept filters stay as they were."_s);
    data->setCurrentUser(u"Somebody else"_s);
    EXPECT_EQ((KeptFilters(u"frmInvReceipts"_s, *data, &settings).all().size()), 0);
}

TEST_F(ListScreensTest, historyIsNarrowedFromTotalsAndByItsDialog)
{
    addReceipts();
    kitchen.setStock(1, 1, 3, 2);
    kitchen.execute(
        u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, ReceiptID, "
        "TransDescription) VALUES (1, 1, 2026, 3, 3, '2026-03-02', 5, 1, 'Receipt: 1001'), "
        "(1, 1, 2026, 4, 5, '2026-04-02', 2, NULL, 'Usage'), (2, 2, 2025, 3, 2, '2025-03-02', 1, NULL, 'Sale')"_s);
    context->hasScreen = [](const QString &name) { return name == "frmInvHistory"_L1; };
    context->openScreen = [&](const QString &) { return &open<TfrmInvHistory>(); };
    auto &totals = open<TfrmInvTotals>();
    press(Qt::Key_Return);
    ASSERT_NE(list, &totals);
    EXPECT_EQ(narrowed(), u"(ItemID = 1) AND (WarehouseID = 1): 2"_s);
    EXPECT_EQ(row(0).mid(0, 5).join(u'|'), u"4/2026|02 Apr 26|A10|Apples|Usage"_s);

    inDialog<TfrmInvHistoryFilter>(u"mnuFilter"_s, [](TfrmInvHistoryFilter &dialog) {
        EXPECT_EQ(dialog.GetItemID(), 1) << "preset";
        EXPECT_EQ(dialog.GetWarehouseID(), 1);
        dialog.btnResetClick();
        child<QComboBox>(dialog, "cboTransType")->setCurrentIndex(2);
        type("<Alt+Y>26<Return>");
    });
    EXPECT_EQ(narrowed(), u"(TransType = 5) AND (GLYear = 2026): 1"_s);
}

TEST_F(ListScreensTest, historyOpensDocumentsOnTheLineOfTheItem)
{
    kitchen.addReceipt(1, 1, 1, {{2, 4, 1.0}, {1, 5, 3.0}, {3, 1, 1.0}, {1, 6, 3.0}});
    addDocument(kitchen, DocumentKinds::usage(), 1, 1, {{1, u"2"_s}, {3, u"8"_s}});
    addDocument(kitchen, DocumentKinds::adjustment(), 1, 1, {{1, u"2"_s}, {2, u"-1"_s}});
    kitchen.execute(
        u"INSERT INTO IHist (ItemID, GLYear, GLPeriod, TransType, Quantity, ReceiptID, UsageID, AdjustmentID) "
        u"VALUES "
        "(1, 2026, 9, 3, 6, 1, NULL, NULL), (3, 2026, 8, 5, 8, NULL, 1, NULL), (2, 2026, 7, 1, -1, NULL, NULL, 1), "
        "(3, 2026, 6, 3, 77, 1, NULL, NULL), (4, 2026, 5, 2, 1, NULL, NULL, NULL)"_s);
    auto &history = open<TfrmInvHistory>();
    // Which document the row opens, and the quantity and item that the cursor is on there.
    const std::tuple<int, const DocumentKind &, QString> cases[] = {{0, DocumentKinds::receipt(), u"6 A10"_s},
                                                                    {1, DocumentKinds::usage(), u"8 B1"_s},
                                                                    {2, DocumentKinds::adjustment(), u"-1 A11"_s},
                                                                    {3, DocumentKinds::receipt(), u"1 B1"_s}};
    for (const auto &[row, kind, line] : cases) {
        SCOPED_TRACE(row);
        showActive(history);
        grid->setCurrentIndex(grid->model()->index(row, 0));
        EXPECT_TRUE(history.command(u"mnuOpenDocument"_s)->isEnabled());
        EXPECT_EQ(history.command(u"mnuSource"_s)->isEnabled(), row != 1);
        history.command(u"mnuOpenDocument"_s)->trigger();
        auto *document = findScreen<DocumentScreen>(kind.entry.screen);
        ASSERT_NE(document, nullptr);
        auto *lines = child<QTableView>(*document, "DBGrid1");
        EXPECT_EQ(rowOf(*lines, lines->currentIndex().row()).mid(0, 2).join(u' '), line);
        EXPECT_EQ(document->focusWidget(), lines);
    }
    grid->setCurrentIndex(grid->model()->index(4, 0));
    EXPECT_FALSE(history.command(u"mnuOpenDocument"_s)->isEnabled()) << "a sale of the billing application";
    EXPECT_EQ(prompts.said, QStringList());
}
