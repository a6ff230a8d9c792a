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
        kitchen.execute(uR"(
            UPDATE Vendor SET Phone = '555-1234', EMail = 'a&b?@first.example', WebPage = 'first.example'
                WHERE VendorID = 1;
            INSERT INTO VContact (VendorID, ContactID, FirstName, LastName, BusinessPhone, EMail)
                VALUES (1, 7, 'Mary', 'Cole', '555-7', 'mary@first.example'), (1, 8, 'Otto', 'Berg', NULL, NULL);
        )"_s);
        context->openObject = [this](const QString &address) { opened << address; };
        list = new TfrmVendors(*context, mainWindow.get());
        showActive(*list);
    }

    // The card that the list opens on a vendor; 0 for a new one.
    TfrmVendor &open(int key = 0)
    {
        if (key == 0) {
            list->btnNewClick();
        } else {
            EXPECT_TRUE(list->moveToKey(key));
            list->btnEditClick();
        }
        card = findScreen<TfrmVendor>(u"frmVendor"_s);
        showActive(*card);
        return *card;
    }
    TfrmVContact *contactCard()
    {
        auto *contact = findScreen<TfrmVContact>(u"frmVContact"_s);
        if (contact)
            showActive(*contact);
        return contact;
    }
    QString listed(int row) { return cellOf(*child<QTableView>(*card, "DBGrid1"), row, 1); }

    QStringList opened; // by the desktop
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
    prompts.ok = false;
    click(*card, "btnNew");
    EXPECT_TRUE(prompts.take().value(0).endsWith(u"must be saved before entering contacts...\nSave now?"_s));
    EXPECT_EQ(contactCard(), nullptr);
    prompts.ok = true;
    click(*card, "btnNew");
    EXPECT_EQ(prompts.take().last(), u"error: Vendor no. already exists"_s);
    EXPECT_EQ(focusName(), u"editVendorNo"_s);
    type("V9");
    click(*card, "btnNew");
    EXPECT_EQ(prompts.take().size(), 1);
    EXPECT_EQ(list->dataSet().text(u"VendorNo"), u"V9"_s) << "in the list at once";

    QPointer<TfrmVContact> contact = contactCard();
    ASSERT_NE(contact, nullptr);
    EXPECT_EQ(contact->windowTitle(), u"New Contact at Mill"_s);
    typeOver(*contact, "editLastName", "Frey");
    click(*contact, "btnOK");
    settle();
    EXPECT_TRUE(contact.isNull());
    EXPECT_EQ(kitchen.found(u"SELECT VendorID, LastName FROM VContact WHERE ContactID > 8"_s), u"10000|Frey");
    EXPECT_EQ(child<QTableView>(*card, "DBGrid1")->model()->rowCount(), 1);
}

TEST_F(VendorScreensTest, contactsAreEditedAndDeletedOnTheCard)
{
    open(1);
    focusOn(*card, "DBGrid1");
    EXPECT_EQ(listed(0) + listed(1), u"OttoMary"_s);
    type("<Down><Return>");
    QPointer<TfrmVContact> contact = contactCard();
    ASSERT_NE(contact, nullptr);
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
    EXPECT_EQ(opened, QStringList(u"http://new.example/x"_s));
}
