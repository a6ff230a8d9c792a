#include "controls/screens/recordscreen.h"
#include "controls/windows/screenmetrics.h"
#include "frame/finder/finderbox.h"
#include "frame/helpwindow.h"
#include "master/barcodes.h"
#include "tests/frame/hoststub.h"

#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct FinderTest : HostedTest
{
    FinderTest()
        : HostedTest(productScreens())
    {
        link(&host);
    }

    // Does something while the main window is open over two items, a vendor and a document of each kind.
    void whileWorking(const std::function<void()> &step)
    {
        EXPECT_TRUE(open([&] {
            Engine::Connection &store = form.dataModule()->databaseTallymere().connection();
            store.execute(
                u"INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID) VALUES "
                "(1, 'A10', 'Crème fraîche', 1), (2, 'A11', 'Ice cream', 1);"
                "INSERT INTO Vendor (VendorID, VendorNo, VendorName) VALUES (3, '1010', 'Ödlund');"
                "INSERT INTO IReceipt (ReceiptID, ReceiptNo, WarehouseID, Posted) VALUES (4, '1010', 1, true);"
                "INSERT INTO IUsage (UsageID, UsageNo, Description) VALUES (5, '2020', 'Soup for the ödla');"
                "INSERT INTO IAdjust (AdjustmentID) VALUES (6)"_s);
            form.activateWindow();
            EXPECT_TRUE(comesTrue([this] { return QApplication::focusWidget() && form.isActiveWindow(); }));
            step();
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (window != &form && window != &host)
                    window->close();
            }
        }));
    }
    FinderBox *box() { return form.findChild<FinderBox *>({}, Qt::FindDirectChildrenOnly); }
    // Opens the box over the active window, and lets all be read that it keeps.
    void openBox()
    {
        press(Qt::Key_K, Qt::ControlModifier);
        ASSERT_TRUE(box() && box()->isVisible());
        ASSERT_TRUE(comesTrue([this] { return !box()->finder().isReading(); }));
    }
    // All answers to what is typed, with their headings.
    QString found(const QString &typed)
    {
        openBox();
        type(typed);
        QStringList texts;
        const auto *list = child<QListWidget>(*box(), "listFound");
        for (int row = 0; row < list->count(); ++row)
            texts << list->item(row)->text();
        press(Qt::Key_Escape);
        EXPECT_FALSE(box()->isVisible());
        return texts.join(u", "_s);
    }
    // What Enter on the first answer opens: its component name, and the key of a record.
    QString opened(const QString &typed)
    {
        openBox();
        type(typed);
        press(Qt::Key_Return);
        EXPECT_FALSE(box()->isVisible());
        EXPECT_TRUE(comesTrue([this] { return QApplication::activeWindow() != &form; }));
        QWidget *window = QApplication::activeWindow();
        const auto *record = qobject_cast<RecordScreen *>(window);
        const QString name = record ? window->objectName() + u' ' + QString::number(record->storedKey().value_or(0))
                                    : window->objectName();
        menu.actions().constFirst()->trigger();
        EXPECT_TRUE(comesTrue([this] { return QApplication::activeWindow() == &form; }));
        window->close();
        return name;
    }
};

} // namespace

TEST_F(FinderTest, FindsWhateverItIsByNumberOrByAnyWords)
{
    whileWorking([this] {
        EXPECT_EQ(found(u"CREAM ice"_s), u"Items, Ice cream"_s);
        EXPECT_EQ(found(u"ÖDL"_s), u"Vendors, Ödlund, Inventory Usage, Inventory Usage 2020"_s);
        // One is called just so; of both kinds.
        EXPECT_EQ(found(u"1010"_s), u"Vendors, Ödlund, Inventory Receipts, Receipt 1010"_s);
        addBarcode(form.dataModule()->databaseTallymere(), 2, u"4006381333931"_s);
        EXPECT_EQ(found(u"4006381333931"_s), u"Items, Ice cream"_s);
        EXPECT_TRUE(begins(found(u"adjustment 6"_s), u"Inventory Adjustments, "_s));
        form.dataModule()->databaseTallymere().connection().execute(
            u"INSERT INTO IReceipt (ReceiptID, ReceiptNo) VALUES (7, '1')"_s);
        EXPECT_EQ(found(u"RECEIPTS 1"_s), u"Inventory Receipts, Receipt 1, Receipt 1010"_s);
        EXPECT_EQ(found(u"synchronize loc"_s).section(u", "_s, 0, 1), u"Commands, Synchronize Locations"_s);
        EXPECT_TRUE(found(u"filter receipts"_s).split(u", "_s).contains(u"Inventory Receipts Filter"_s))
            << "a section of the manual";
        EXPECT_TRUE(found(u"average cost"_s).split(u", "_s).contains(u"average cost"_s))
            << "a word of the manual's index";
        EXPECT_EQ(found(u"no such thing"_s), QString());

        openBox();
        type("101<Down>0");
        EXPECT_EQ(child<QListWidget>(*box(), "listFound")->currentItem()->text(), u"Receipt 1010"_s)
            << "the row that was gone to";
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(company.prompts.said, QStringList());
}

TEST_F(FinderTest, EnterOpensWhatIsFoundAndTheLastComeBack)
{
    whileWorking([this] {
        EXPECT_EQ(found(QString()), QString());
        EXPECT_EQ(opened(u"fraîche"_s), u"frmItemInv 1"_s);
        EXPECT_EQ(opened(u"vendor"_s), u"frmVendors"_s) << "the command";
        EXPECT_EQ(opened(u"receipt 1010"_s), u"frmInvReceipt 4"_s);
        EXPECT_EQ(opened(u"ödla"_s), u"frmUsage 5"_s);
        EXPECT_EQ(opened(u"inventory totals"_s), u"frmInvTotals"_s) << "by its window's title";
        EXPECT_EQ(opened(u"fraîche"_s), u"frmItemInv 1"_s);
        EXPECT_EQ(found(QString()).section(u", "_s, 1, 3), u"Crème fraîche, View Totals, Inventory Usage 2020"_s);
        // They are kept, but for those that are gone.
        form.dataModule()->databaseTallymere().connection().execute(u"DELETE FROM IUsage"_s);
        delete box();
        EXPECT_EQ(found(QString()).section(u", "_s, 1),
                  u"Crème fraîche, View Totals, Receipt 1010, Edit Vendors"_s);

        openBox();
        type(u"fraîche"_s);
        press(Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_TRUE(comesTrue([] { return findScreen(u"frmItemCard"_s) != nullptr; }));

        openBox();
        type(u"close the month"_s);
        press(Qt::Key_Return);
        const auto *help = form.findChild<HelpWindow *>();
        ASSERT_TRUE(help && help->isVisible());
        const auto *page = child<QTextBrowser>(*help, "browser");
        EXPECT_TRUE(page->source().path().endsWith("monthend.html"_L1));
        EXPECT_TRUE(comesTrue([page] { return page->hasFocus(); }));

        openBox();
        type(u"that nobody knows"_s);
        press(Qt::Key_Return);
        EXPECT_TRUE(page->source().toString().endsWith("scanner.html#unknown"_L1)) << "a section of a page";
    });
    EXPECT_EQ(company.prompts.said, QStringList());
}

// A field knows Ctrl+K as a key of its own, and what stands in it must not suffer.
TEST_F(FinderTest, OpensOverAnyWindowButNotWhereADialogWaits)
{
    whileWorking([this] {
        openBox();
        type("A1<Down><Return>");
        QWidget *record = nullptr;
        ASSERT_TRUE(comesTrue([&] {
            record = QApplication::activeWindow();
            return record && record->objectName() == u"frmItemInv"_s;
        }));
        auto *name = child<QLineEdit>(*record, "editItemDescription");
        name->setFocus();
        name->home(false);
        for (const auto step : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent key(step, Qt::Key_K, Qt::ControlModifier);
            key.ignore();
            QApplication::sendEvent(name, &key);
            EXPECT_TRUE(key.isAccepted()) << "nobody else gets it as well";
        }
        openBox();
        EXPECT_EQ(name->text(), u"Ice cream"_s);
        press(Qt::Key_Escape);
        EXPECT_EQ(QApplication::activeWindow(), record);
        record->close();

        QDialog dialog(&form);
        dialog.setModal(true);
        showActive(dialog);
        QTest::keyClick(&dialog, Qt::Key_K, Qt::ControlModifier);
        EXPECT_FALSE(box()->isVisible());
        dialog.close();
    });
}

TEST_F(FinderTest, TellsWhenWhatWasFoundIsGone)
{
    whileWorking([this] {
        openBox();
        type(u"fraîche"_s);
        form.dataModule()->databaseTallymere().connection().execute(u"DELETE FROM Item WHERE ItemID = 1"_s);
        press(Qt::Key_Return);
        EXPECT_TRUE(has(company.prompts.last(), u"Crème fraîche"_s)) << qPrintable(company.prompts.last());
        EXPECT_EQ(found(u"fraîche"_s), QString());
    });
}
