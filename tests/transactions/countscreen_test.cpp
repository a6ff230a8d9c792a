#include "controls/fields/datepicker.h"
#include "master/barcodes.h"
#include "phonecount/networkaddresses.h"
#include "phonecount/screens/phonecountscreen.h"
#include "tests/support/countingphone.h"
#include "tests/support/screentest.h"
#include "transactions/screens/countgrid.h"
#include "transactions/screens/enterinventory.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Apples 10 and Bread 5 of Food, apricots 2.5 of Goods, all at the Office; nothing in the Freezer.
struct CountScreenTest : ScreenTest
{
    CountScreenTest()
    {
        qputenv("XDG_DATA_HOME", folder.path().toUtf8());
        kitchen.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = 1; "
                        "UPDATE Item SET Suspended = false WHERE ItemID = 2"_s);
        for (const auto &[item, onHand, cost] : {std::tuple{1, 10.0, 1.5}, {2, 5.0, 2.0}, {3, 2.5, 1.0}})
            kitchen.setStock(item, 1, onHand, cost);
        open();
    }

    void open()
    {
        screen = openScreen<TFormEnterInventory>();
        grid = child<CountGrid>(*screen, "wwDBGridInventory");
        locations = child<QComboBox>(*screen, "RzComboBoxLocation");
        ok = child<QPushButton>(*screen, "BitBtnOK");
    }
    void choose(const QString &location)
    {
        locations->setCurrentIndex(locations->findText(location, Qt::MatchStartsWith));
        Q_EMIT locations->activated(locations->currentIndex());
    }
    static void search(const char *text)
    {
        press(Qt::Key_F, Qt::ControlModifier);
        enter(text);
    }
    static void enter(const char *text)
    {
        type(text);
        press(Qt::Key_Return);
    }
    static void enter(const char *itemNo, const char *quantity)
    {
        search(itemNo);
        enter(quantity);
    }
    // Rows as "A10 10 8 -2", what is empty left out; headings as they are.
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            const QStringList cells = rowOf(*grid, row);
            rows.append((cells.mid(0, 1) + cells.mid(4, 3)).join(u' ').simplified());
        }
        return rows;
    }
    QString cursor() const { return grid->currentIndex().siblingAtColumn(0).data().toString(); }
    QString notFound() const { return child<QLabel>(*screen, "lblNotFound")->text(); }
    QString status() const { return child<QLabel>(*screen, "lblStatus")->text(); }
    QStringList usageLines() { return kitchen.rows(u"SELECT ItemID, Quantity FROM IUsageDet ORDER BY Seq"_s); }

    QTemporaryDir folder;
    QPointer<TFormEnterInventory> screen;
    CountGrid *grid = nullptr;
    QComboBox *locations = nullptr;
    QPushButton *ok = nullptr;
};

TEST_F(CountScreenTest, ALargeQuantityIsAskedAboutOnce)
{
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 15000000 WHERE ItemID = 1"_s);
    choose(u"Office"_s);
    search("A10");
    prompts.ok = false;
    enter("1500000");
    EXPECT_EQ(prompts.told(),
              u"Warning: The quantity is 1,500,000. A number may have been scanned into the wrong column.\nDo you "
              u"want to keep this quantity?");
    EXPECT_EQ(rows().first(), u"A10 15,000,000 15,000,000"_s);
    EXPECT_EQ(cursor(), u"A10"_s);
    prompts.ok = true;
    press(Qt::Key_Return); // what has been typed is still there
    EXPECT_EQ(prompts.take().size(), 1);
    EXPECT_EQ(rows().first(), u"A10 15,000,000 1,500,000 -13,500,000"_s);
    search("A10");
    type("<F2><Return>");
    EXPECT_EQ(prompts.told(), QString()) << "it has been answered";
}

TEST_F(CountScreenTest, CountsByKeyboardAndCalculates)
{
    EXPECT_EQ(locations->itemText(0), u"Freezer          [2]"_s);
    locations->setFocus();
    type("o");
    EXPECT_EQ(locations->currentIndex(), -1) << "a letter opens no location yet";
    QTest::keyClick(locations->view(), Qt::Key_Return);
    search("a11");
    EXPECT_EQ(cursor(), u"A11"_s);
    enter("4");
    EXPECT_EQ(cursor(), u"B1"_s);
    grid->horizontalHeader()->sectionClicked(2);
    type("<Ctrl+F>ap");
    EXPECT_EQ(cursor(), u"A10"_s); // Apples, shown while it is typed
    press(Qt::Key_Return);
    type("<F2><Return>"); // taken as it stands
    EXPECT_EQ(rows(), (QStringList{u"A10 10 10 0"_s, u"B1 2.5 2.5"_s, u"A11 5 4 -1"_s}));
    EXPECT_EQ(status(), u"2 of 3 counted, 1 differ, value of the difference (2.00)"_s);

    grid->horizontalHeader()->sectionClicked(1);
    EXPECT_EQ(rows(), (QStringList{u"Food"_s, u"A10 10 10 0"_s, u"A11 5 4 -1"_s, u"Goods"_s, u"B1 2.5 2.5"_s}));
    QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, {},
                      {grid->columnViewportPosition(1) + 5, 5}); // which is in force
    EXPECT_EQ(rows().size(), 5);
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    search("A11");
    press(Qt::Key_Return); // past the heading
    EXPECT_EQ(cursor(), u"B1"_s);
    enter("1<Up><Up><Up>"); // to the limit, and no further
    EXPECT_EQ(rows().last(), u"B1 2.5 2.5 0"_s);
    search("B1");
    enter("0.5");

    prompts.take();
    prompts.answer = Answer::Cancel;
    ok->click();
    EXPECT_TRUE(usageLines().isEmpty());
    prompts.answer = Answer::Yes;
    ok->click();
    EXPECT_EQ(usageLines(), (QStringList{u"2|1"_s, u"3|2"_s}));
    EXPECT_TRUE(has(status(), u"2 lines"_s));
    EXPECT_EQ(rows().last(), u"B1 2.5 0.5 -2"_s);
    enter("A10", "9");
    EXPECT_FALSE(ok->isEnabled()) << "one calculation of a date and a location";
    auto *date = child<DatePicker>(*screen, "wwDBDateTimePickerInventoryDate");
    date->setDate(data->today().addDays(4));
    EXPECT_EQ(date->date(), data->today().addDays(3));
    date->setDate(data->today().addDays(-365));
    EXPECT_FALSE(ok->isEnabled());
    date->setDate(data->today().addDays(-364));
    EXPECT_TRUE(ok->isEnabled());
    ok->click();
    EXPECT_TRUE(prompts.last().startsWith("warn: There are unposted transactions"_L1)) << "the usage just written";
    EXPECT_EQ(usageLines().size(), 2);
}

TEST_F(CountScreenTest, ABlindCountTellsNothingOfTheBooksUntilItIsCalculated)
{
    context->settings = &settings;
    screen->close();
    open();
    child<QCheckBox>(*screen, "chkBlind")->click();
    choose(u"Office"_s);
    EXPECT_EQ(rows(), (QStringList{u"A10"_s, u"A11"_s, u"B1"_s}));
    search("A10");
    type("<F2><Return>");
    EXPECT_EQ(status(), u"0 of 3 counted"_s) << "there is nothing to be taken as it stands";
    enter("A10", "8");
    prompts.take();
    enter("6"); // of bread there are 5
    EXPECT_TRUE(has(prompts.told(), u"This is more than is recorded."_s));
    type("<Esc><F2>4<Up><Up><Return>");
    EXPECT_TRUE(has(prompts.told(), u"This is more than is recorded."_s)) << "the arrows do not stop at it either";
    press(Qt::Key_Escape);
    EXPECT_EQ(rows(), (QStringList{u"A10 8"_s, u"A11"_s, u"B1"_s}));
    EXPECT_EQ(grid->model()->index(0, 5).data(Qt::BackgroundRole), QVariant()) << "nor does the ground";

    prompts.answer = Answer::Yes;
    ok->click();
    EXPECT_EQ(usageLines(), QStringList{u"1|2"_s});
    EXPECT_EQ(rows(), (QStringList{u"A10 10 8 -2"_s, u"A11 5 5"_s, u"B1 2.5 2.5"_s}));
    screen->close();
    settle();
    kitchen.execute(u"UPDATE IUsage SET Posted = true"_s);
    open();
    choose(u"Office"_s);
    EXPECT_EQ(rows().first(), u"A10"_s) << "kept for the user";
    child<QCheckBox>(*screen, "chkBlind")->click();
    EXPECT_EQ(rows().first(), u"A10 10 10"_s);
}

TEST_F(CountScreenTest, TheDifferencesLeadToTheirItems)
{
    choose(u"Office"_s);
    search("A10");
    for (const char *counted : {"9", "2", "2"})
        enter(counted);
    search("A10");
    type("8"); // being typed
    const auto look = [&](const std::function<void(QDialog &)> &step) {
        return whileOpen<QDialog>([this] { child<QPushButton>(*screen, "btnDifferences")->click(); }, step);
    };
    EXPECT_TRUE(look([](QDialog &dialog) {
        const auto &bars = *child<QTableView>(dialog, "grdDifferences");
        EXPECT_EQ(rowOf(bars, 0).first(5).join(u' '), u"A11 Bread -3 2.00 (6.00)"_s);
        EXPECT_EQ(cellOf(bars, 1, 4), u"(3.00)"_s);
        EXPECT_EQ(child<QLabel>(dialog, "lblSums")->text(), u"Missing: 3 items, (9.50)     Over: 0 items, 0.00"_s);
        EXPECT_EQ(child<QLabel>(dialog, "lblTogether")->text(), u"Together (9.50)"_s);
        type("<Down><Down><Return>");
    }));
    EXPECT_EQ(cursor(), u"B1"_s);
    EXPECT_EQ(focusName(), u"wwDBGridInventory"_s);
    EXPECT_TRUE(look([](QDialog &) { press(Qt::Key_Escape); }));
    EXPECT_EQ(cursor(), u"B1"_s);
}

TEST_F(CountScreenTest, TakesNoQuantityOfAnUnknownItemForAnItem)
{
    kitchen.execute(
        u"UPDATE Item SET ItemNo = '7' WHERE ItemID = 2; UPDATE Item SET ItemNo = '12345' WHERE ItemID = 3"_s);
    choose(u"Office"_s);
    search("7");
    EXPECT_EQ(cursor(), u"7"_s);
    search("555");
    for (const char *quantity : {"7", "1", "1.5", "123"}) {
        enter(quantity);
        EXPECT_EQ(notFound(), u"%1 is not taken: '555' is not in the list"_s.arg(QString::fromLatin1(quantity)));
        EXPECT_EQ(cursor(), u"7"_s) << quantity;
    }
    enter("12345"); // the next item
    EXPECT_EQ(cursor(), u"12345"_s);
    EXPECT_EQ(focusName(), u"wwDBGridInventory"_s);
    EXPECT_EQ(notFound(), QString());
    enter("2");

    search("555");
    press(Qt::Key_Backspace);
    enter("7"); // searched for after all
    EXPECT_EQ(cursor(), u"7"_s);
    EXPECT_EQ(rows(), (QStringList{u"12345 2.5 2 -0.5"_s, u"7 5 5"_s, u"A10 10 10"_s}));
}

TEST_F(CountScreenTest, TriesARefusedLocationOnceMore)
{
    kitchen.execute(u"INSERT INTO IAdjust (AdjustmentID, AdjDescription, AdjDate, WarehouseID, Posted) "
                    "VALUES (12, 'Spoilt', '2026-03-05', 1, false)"_s);
    choose(u"Office"_s);
    prompts.answer = Answer::Yes;
    ok->click();
    EXPECT_TRUE(ends(prompts.last(), u"have been posted.\n\nInventory Adjustment 12, 05 Mar 26, Spoilt"_s));
    EXPECT_EQ(status(), QString());
    kitchen.execute(u"UPDATE IAdjust SET Posted = true"_s);
    ok->click();
    EXPECT_EQ(rows().size(), 3);
    EXPECT_TRUE(usageLines().isEmpty());
}

TEST_F(CountScreenTest, ReadsAgainUnderTheCountWhereOthersHavePosted)
{
    kitchen.execute(u"UPDATE ItemType SET CostingMethod = 2 WHERE ItemTypeID = 2; "
                    "UPDATE Item SET StandardCost = 4 WHERE ItemID = 3"_s);
    choose(u"Office"_s);
    EXPECT_EQ(grid->model()->index(1, 7).data().toString(), u"2.00"_s); // what bread has cost on an average
    EXPECT_EQ(grid->model()->index(2, 7).data().toString(), u"4.00"_s);
    enter("A10", "6");
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 8 WHERE ItemID = 1"_s);
    prompts.take();
    prompts.answer = Answer::Yes; // to calculating, and to reading again
    const QSignalSpy shownAnew(grid->model(), &QAbstractItemModel::modelReset);
    ok->click();
    EXPECT_EQ(shownAnew.size(), 1);
    EXPECT_TRUE(
        prompts.said.first().endsWith("2 items have not been counted. They keep their recorded quantities."_L1));
    EXPECT_TRUE(usageLines().isEmpty());
    EXPECT_EQ(rows().first(), u"A10 8 6 -2"_s);
    EXPECT_TRUE(ok->isEnabled());
    ok->click();
    EXPECT_EQ(usageLines(), QStringList(u"1|2"_s));
}

TEST_F(CountScreenTest, WhatAPhoneCountsIsNotTypedOverUnseen)
{
    choose(u"Office"_s);
    if (networkAddresses().isEmpty())
        GTEST_SKIP() << "this machine is on no network";
    child<QPushButton>(*screen, "btnPhone")->click();
    const QPointer<TfrmPhoneCount> phones = screen->findChild<TfrmPhoneCount *>();
    const QUrl link(child<QLineEdit>(*phones, "edtLink")->text());
    const CountingPhone ana(phones->service(), link.authority().toLatin1(), link.path().toLatin1(), u"Ana"_s);
    const QJsonValue count = ana.get("/list")[u"count"_s];

    showActive(*screen);
    search("A10");
    type("6");
    const QJsonObject row{{u"id"_s, u"1"_s},       {u"item"_s, 1},     {u"number"_s, u"A10"_s},
                          {u"quantity"_s, u"8"_s}, {u"seen"_s, u""_s}, {u"count"_s, count}};
    EXPECT_EQ(ana.post("/row", row)[u"is"_s], u"taken"_s);
    prompts.ok = false;
    press(Qt::Key_Return);
    EXPECT_TRUE(has(prompts.last(), u"Ana has counted 8 of this item meanwhile."_s));
    press(Qt::Key_Escape);
    EXPECT_EQ(rows().first(), u"A10 10 8 -2"_s);
    EXPECT_TRUE(grid->model()->index(0, 5).data(Qt::ToolTipRole).toString().startsWith(u"Counted by Ana, "_s));
    EXPECT_TRUE(has(status(), u"Phones: 1, numbers from them: 1"_s));
    EXPECT_EQ(child<QListWidget>(*phones, "lstPhones")->count(), 1);
    auto *addresses = child<QComboBox>(*phones, "cboAddress");
    addresses->addItem(u"127.0.0.1"_s);
    addresses->setCurrentIndex(addresses->count() - 1);
    Q_EMIT addresses->activated(addresses->currentIndex());
    EXPECT_TRUE(has(prompts.last(), u"need a new link"_s));
    EXPECT_EQ(addresses->currentIndex(), 0);
    prompts.ok = true;
    choose(u"Freezer"_s);
    EXPECT_TRUE(isGone(phones)) << "the page ends with the count";
}

TEST_F(CountScreenTest, AsksBeforeCountsAreLost)
{
    choose(u"Office"_s);
    enter("A10", "8");
    prompts.ok = false;
    choose(u"Freezer"_s);
    EXPECT_EQ(
        prompts.last(),
        u"Confirm: If you change Locations the edits you \r\nhave made to the inventory list will be lost.\r\n"
        "Proceed with changing the Location?"_s);
    EXPECT_TRUE(locations->currentText().startsWith("Office"_L1));
    EXPECT_EQ(rows().first(), u"A10 10 8 -2"_s);

    prompts.ok = true;
    child<QCheckBox>(*screen, "RzCheckBoxIncludeZeroCountItems")->click();
    EXPECT_EQ(rows().first(), u"A10 10 10"_s);
    kitchen.execute(u"INSERT INTO IReceipt (ReceiptID, WarehouseID, Posted) VALUES (1, 2, false)"_s);
    prompts.onWarn = [this] { grid->grab(); }; // as a box lets the window be painted
    choose(u"Freezer"_s);
    EXPECT_TRUE(prompts.last().startsWith("warn: There are unposted transactions"_L1));
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(CountScreenTest, OffersWhatHasBeenLeft)
{
    choose(u"Office"_s);
    child<DatePicker>(*screen, "wwDBDateTimePickerInventoryDate")->setDate(data->today().addDays(-2));
    enter("A10", "8");
    delete screen; // as a crash leaves it
    open();
    EXPECT_TRUE(grid->shownHint().contains("Office"_L1));

    prompts.answer = Answer::Cancel;
    choose(u"Office"_s);
    EXPECT_EQ(locations->currentIndex(), -1);
    prompts.answer = Answer::Yes;
    choose(u"Office"_s);
    EXPECT_EQ(rows().first(), u"A10 10 8 -2"_s);
    EXPECT_EQ(cursor(), u"A11"_s);
    EXPECT_EQ(focusName(), u"wwDBGridInventory"_s) << "at what is counted next";
    EXPECT_EQ(child<DatePicker>(*screen, "wwDBDateTimePickerInventoryDate")->date(), data->today().addDays(-2));

    type("3");
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        screen->close(); // and keeps it, with what stands in the cell
        settle();
        open();
        prompts.answer = answer;
        choose(u"Office"_s);
        EXPECT_EQ(rows()[1], answer == Answer::Yes ? u"A11 5 3 -2"_s : u"A11 5 5"_s);
    }
    EXPECT_EQ(rows().first(), u"A10 10 10"_s);
    prompts.take();
    choose(u"Office"_s);
    EXPECT_TRUE(prompts.said.isEmpty());
}

TEST_F(CountScreenTest, StaysOpenWhenTheCountCannotBeKept)
{
    // Of a location whose key is longer than its place in the text.
    kitchen.execute(u"INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (12345, 'Annex [2]')"_s);
    kitchen.setStock(3, 12345, 9, 1);
    delete screen;
    qputenv("XDG_DATA_HOME", "/proc/nowhere");
    open();
    choose(u"Annex"_s);
    enter("B1", "8");
    EXPECT_EQ(rows(), QStringList(u"B1 9 8 -1"_s));
    prompts.answer = Answer::Yes;
    screen->close();
    EXPECT_TRUE(prompts.last().startsWith("error: What has been counted could not be kept in /proc/nowhere"_L1));
    EXPECT_TRUE(screen && screen->isVisible());
    prompts.answer = Answer::No;
    screen->close();
    EXPECT_TRUE(isGone(screen));
}

} // namespace

TEST_F(CountScreenTest, aScannedCodeGoesToItsItemWhateverCellItIsIn)
{
    addBarcode(kitchen.database(), 2, u"4006381333931"_s);
    choose(u"Office"_s);
    grid->setFocus();
    scan(u"4006381333931"_s);
    EXPECT_EQ(cursor(), u"A11"_s);
    EXPECT_FALSE(grid->hasEntry());
    enter("4");
    EXPECT_EQ(rows()[1], u"A11 5 4 -1"_s);
    prompts.ok = false;
    scan(u"9783161484100"_s);
    EXPECT_EQ(prompts.told(),
              u"Confirm: No item has the code '9783161484100'. Do you want to look for the item?"_s);
    EXPECT_EQ(focusName(), u"wwIncrementalSearch1"_s);
    type("7<Return>");
    EXPECT_EQ(rows()[2], u"B1 2.5 2.5"_s) << "nor for the item that the cursor was on";
    prompts.ok = true;
    search("4006381333931");
    EXPECT_EQ(cursor(), u"A11"_s) << "typed as well";
    kitchen.execute(u"INSERT INTO Item (ItemID, ItemNo, ItemDescription) VALUES (50, 'Z1', 'Zest')"_s);
    search("Z1");
    EXPECT_EQ(notFound(), u"'Z1' is not in the list: Zest"_s);
    prompts.take();
    prompts.ok = false;
    search("9783161484100");
    EXPECT_TRUE(prompts.told().startsWith(u"Confirm: No item has the code"_s)) << "in the search box as well";
}
