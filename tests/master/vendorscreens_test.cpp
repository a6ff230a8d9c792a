#include "master/masterkinds.h"
#include "master/screens/vcontact.h"
#include "master/screens/vendor.h"
#include "master/screens/vendors.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct VendorScreensTest : ScreenTest
{
    VendorScreensTest()
    {
        kitchen.execute(u"INSERT INTO VContact (VendorID, ContactID, FirstName, LastName) VALUES "
                        "(1, 7, 'Mary', 'Cole'), (1, 8, 'Otto', 'Berg')"_s);
        context->openObject = [this](const QString &address) { addresses << address; };
        list = openScreen<TfrmVendors>();
    }

    // The card that the list opens on a vendor; 0 for a new one.
    void open(int key = 0)
    {
        EXPECT_TRUE(key == 0 || list->moveToKey(key));
        key == 0 ? list->btnNewClick() : list->btnEditClick();
        card = opened<TfrmVendor>(u"frmVendor"_s);
    }
    QString listed(int row) { return cellOf(*child<QTableView>(*card, "DBGrid1"), row, 1); }

    QStringList addresses; // that the desktop has opened
    QPointer<TfrmVendors> list;
    QPointer<TfrmVendor> card;
};

} // namespace

TEST_F(VendorScreensTest, newVendorIsSavedBeforeItsContacts)
{
    open();
    typeOver(*card, "editVendorNo", "V2");
    typeOver(*card, "editVendorName", "Mill");
    typeIn(*card, "cboCurrency", "Ho<Return>");
    focusOn(*card, "DBGrid1");
    click(*card, "btnNew");
    EXPECT_EQ(prompts.take().last(), u"error: Vendor no. already exists"_s);
    EXPECT_EQ(focusName(), u"editVendorNo"_s);
    type("V9");
    click(*card, "btnNew");
    EXPECT_EQ(prompts.take().size(), 1);
    EXPECT_EQ(list->dataSet().text(u"VendorNo"), u"V9"_s) << "in the list at once";

    QPointer contact = opened<TfrmVContact>(u"frmVContact"_s);
    typeOver(*contact, "editLastName", "Frey");
    click(*contact, "btnOK");
    EXPECT_TRUE(isGone(contact));
    EXPECT_EQ(kitchen.found(u"SELECT VendorID, LastName FROM VContact WHERE ContactID > 8"_s), u"10000|Frey");
    EXPECT_EQ(child<QTableView>(*card, "DBGrid1")->model()->rowCount(), 1);
}

TEST_F(VendorScreensTest, contactsAreEditedAndDeletedOnTheCard)
{
    open(1);
    focusOn(*card, "DBGrid1");
    EXPECT_EQ(listed(0) + listed(1), u"OttoMary"_s);
    type("<Down><Return>");
    auto *contact = opened<TfrmVContact>(u"frmVContact"_s);
    child<QAction>(*card, "mnuEdit")->trigger();
    EXPECT_EQ(findScreen(u"frmVContact"_s), contact) << "its card is open already";
    typeOver(*contact, "editLastName", "Ams");
    click(*contact, "btnOK");
    settle();
    EXPECT_EQ(listed(0) + listed(1), u"MaryOtto"_s);
    EXPECT_EQ(child<QTableView>(*card, "DBGrid1")->currentIndex().row(), 0) << "on the contact that was saved";
    click(*card, "btnDelete");
    EXPECT_EQ(prompts.told(), u"Confirm: Delete 'Mary Ams'?");
    EXPECT_EQ(listed(0) + listed(1), u"Otto"_s);
    EXPECT_EQ(kitchen.found(u"SELECT FirstName FROM VContact"_s), u"Otto");
}

TEST_F(VendorScreensTest, buttonsReachWhatHasJustBeenTypedBesideThem)
{
    open(1);
    typeOver(*card, "editWebPage", "http://new.example/x");
    click(*card, "btnWebPage");
    EXPECT_EQ(addresses, QStringList(u"http://new.example/x"_s));
}
