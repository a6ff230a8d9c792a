#include "controls/grids/linegrid.h"
#include "controls/grids/listgrid.h"
#include "master/screens/itemsearchinv.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ReceiptScreenTest : ScreenTest
{
    void open(int key = 0)
    {
        screen = openRecord<TfrmInvReceipt>(key);
        grid = child<LineGrid>(*screen, "DBGrid1");
    }

    static void search(const std::function<void(TfrmItemSearchInv &)> &step)
    {
        EXPECT_TRUE(whileOpen<TfrmItemSearchInv>([] { press(Qt::Key_Return, Qt::ControlModifier); }, step));
    }
    void pressOK()
    {
        QTest::mouseClick(child<QPushButton>(*screen, "btnOK"), Qt::LeftButton);
        settle();
    }

    QPointer<TfrmInvReceipt> screen;
    LineGrid *grid = nullptr;
};

} // namespace

TEST_F(ReceiptScreenTest, isEnteredByKeyboardAlone)
{
    open();
    QSignalSpy saved(screen, &EntryScreen::saved);
    type("V1<Return>f<PgDown>5<Return>A10<Return><Return>3<Return>"); // appends the second line
    EXPECT_EQ(cursorOf(*grid), u"1,0"_s);
    type("2<Return><Return>"); // past the number, to the description
    type("bro<Backspace>"); // deleting completes nothing
    EXPECT_EQ(qobject_cast<QLineEdit *>(QApplication::focusWidget())->text(), u"Br"_s);
    type("e"); // completed to "Bread", whose first letter has another case
    type("<Return>1.25");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(comesTrue([&] { return !screen; })) << "closed and freed";
    EXPECT_EQ(prompts.said, QStringList());
    ASSERT_EQ(saved.size(), 1);
    const int key = saved.first().first().toInt();
    EXPECT_EQ(kitchen.found(u"SELECT ReceiptNo, VendorID, WarehouseID, GLYear, GLPeriod FROM IReceipt"_s),
              u"1001|1|2|2026|3");
    EXPECT_EQ(kitchen.lines(key), (QStringList{u"1|1|5|3"_s, u"2|2|2|1.25"_s}));
}

TEST_F(ReceiptScreenTest, keyGoesIntoTheLineThatTheCursorIsOnAlsoWhenAnotherUserHasTakenOneBeforeIt)
{
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}, {2, 4, 1.0}, {3, 6, 2.0}});
    open(7);
    grid->setFocus();
    press(Qt::Key_Down);
    kitchen.execute(u"DELETE FROM IRecDet WHERE Seq = 1"_s);
    type("9<Return>");
    EXPECT_EQ(cursorOf(*grid), u"0,1"_s);
    press(Qt::Key_Up);
    pressOK();
    EXPECT_EQ(kitchen.lines(7), (QStringList{u"2|2|9|1"_s, u"3|3|6|2"_s}));
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(ReceiptScreenTest, aSuspendedVendorCannotBePickedFromTheListEither)
{
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}});
    open(7);
    typeIn(*screen, "cboVendor", "Fourth<Tab>");
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts.told(), u"error: Vendor 'V4: Fourth' has been suspended");
    EXPECT_EQ(child<LookupComboBox>(*screen, "cboVendor")->currentText(), u"First"_s) << "the box goes back";
    EXPECT_EQ(child<QLineEdit>(*screen, "editVendorNo")->text(), u"V1"_s);
}

TEST_F(ReceiptScreenTest, typedVendorNumberTouchesTheReceiptWhenItIsTakenOver)
{
    TheirTable theirs(kitchen, u"IReceipt"_s);
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}});
    theirs.refresh();
    open(7);
    auto *vendorNo = child<QLineEdit>(*screen, "editVendorNo");
    type("V2");
    EXPECT_NO_THROW(theirs.edit()) << "nobody holds it";
    press(Qt::Key_Tab);
    EXPECT_TRUE(prompts.take().value(0).startsWith("error: "_L1)) << "held by anna by now";
    EXPECT_EQ(vendorNo->text(), u"V2"_s);
    theirs.cancel();
    press(Qt::Key_Escape);
    EXPECT_EQ(vendorNo->text(), u"V1"_s);
    type("V1<Tab>");
    screen->close();
    EXPECT_TRUE(isGone(screen));
    EXPECT_EQ(prompts.told(), QString()) << "nothing has changed";

    open(7);
    type("V2");
    prompts.answer = Answer::Yes;
    screen->close();
    settle();
    EXPECT_EQ(prompts.told(), u"Do you want to save changes?") << "what is typed is not lost";
    EXPECT_EQ(kitchen.number(u"SELECT VendorID FROM IReceipt"_s), 2);
}

TEST_F(ReceiptScreenTest, aDateFarAwayIsAskedAboutOnce)
{
    open();
    auto *date = child<QLineEdit>(*screen, "editReceiptDate");
    const auto enter = [&](const char *typed) {
        typeOver(*screen, "editReceiptDate", typed);
        press(Qt::Key_Tab);
        settle();
    };
    const QString question =
        u"Warning: 1 Jan %1 is more than a year away from today.\nDo you want this date all the same?"_s;
    prompts.ok = false;
    enter("010150");
    EXPECT_EQ(prompts.told(), question.arg(1950));
    prompts.ok = true;
    press(Qt::Key_Tab);
    settle();
    EXPECT_EQ(prompts.told(), question.arg(1950));
    EXPECT_EQ(date->text(), u"01 Jan 50"_s);
    EXPECT_NE(focusName(), u"editReceiptDate"_s) << "the cursor has gone on";
    enter("042026");
    enter("010150");
    EXPECT_EQ(prompts.told(), QString()) << "the same again";
    screen->btnCancelClick();

    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}});
    open(7);
    typeOver(*screen, "editReceiptDate", "1/1/1");
    pressOK();
    EXPECT_EQ(prompts.told(), question.arg(2001));
    EXPECT_EQ(kitchen.found(u"SELECT ReceiptDate FROM IReceipt"_s), u"2001-01-01");
}

TEST_F(ReceiptScreenTest, postedReceiptIsShownAndNothingInItCanBeChanged)
{
    kitchen.addReceipt(7, 1, 2, {{1, 123'457, 3.0}});
    open(7);
    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s); // by another user, unseen so far
    type("V2<Tab>");
    settle();
    EXPECT_EQ(prompts.take().size(), 1);
    EXPECT_EQ(child<QLineEdit>(*screen, "editVendorNo")->text(), u"V1"_s);
    typeIn(*screen, "DBGrid1", "<PgDown>");
    EXPECT_EQ(grid->model()->rowCount(), 1);
}

TEST_F(ReceiptScreenTest, itemSearchPutsTheChosenItemIntoTheLineAndKeepsTheReceiptAsItIsMeanwhile)
{
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}});
    open(7);
    typeIn(*screen, "DBGrid1", "<Return>");
    search([](TfrmItemSearchInv &dialog) {
        EXPECT_EQ(dialog.GetItemID(), 1);
        type("A11<Return>");
    });
    EXPECT_EQ(cellOf(*grid, 0, 2), u"Bread"_s);
    type("B");
    search([this](TfrmItemSearchInv &dialog) {
        EXPECT_EQ(child<QLineEdit>(dialog, "editFindItemNo")->text(), u"B"_s) << "what was typed goes on there";
        EXPECT_EQ(dialog.GetItemID(), 3);
        // An assistive program reaches windows that keys and mouse do not.
        child<QAction>(*screen, "mnuDeleteLine")->trigger();
        for (const char *button : {"btnOK", "btnCancel"})
            click(*screen, button);
        EXPECT_FALSE(screen->close());
        settle();
        EXPECT_TRUE(dialog.isVisible());
        press(Qt::Key_Escape);
    });
    ASSERT_TRUE(screen && screen->isVisible());
    EXPECT_EQ(child<QLineEdit>(*grid, "editCell")->text(), u"B"_s) << "nothing chosen: typing goes on here";
    press(Qt::Key_Escape);
    pressOK();
    EXPECT_EQ(kitchen.lines(7), QStringList(u"1|2|5|3"_s));
    EXPECT_EQ(prompts.said, QStringList());
}
