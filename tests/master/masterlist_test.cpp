#include "master/masterlist.h"

#include "host/tables/hosttables.h"
#include "master/masterkinds.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Lists : public KitchenTest
{
protected:
    Lists()
    {
        HostTables::createHostTables(database, u"Test Kitchen"_s, u"USA"_s);
        kitchen.execute(uR"(
            INSERT INTO Tax (TaxID, TaxName, TaxCode, TaxDescription, Rate) VALUES (7, 'VAT', 'V', 'Value', 20);
            INSERT INTO Bank (BankID, BankName, CurrencyID) VALUES (7, 'First Bank', 3);
            INSERT INTO ItemType (ItemTypeID, TypeName) VALUES (7, 'Dry');
            INSERT INTO Currency (CurrencyID, CurrencyName) VALUES (4, 'Old');
            INSERT INTO VContact (VendorID, ContactID, FirstName, LastName) VALUES (2, 9, 'Ann', 'Miller');
        )"_s);
    }

    Engine::Database &database = kitchen.database();
};
ON_BOTH_STORES(Lists);

} // namespace

// The reason that is given first stands last.
TEST_P(Lists, RefuseToDeleteWhatIsReferredTo)
{
    const std::tuple<const MasterKind &, int, QString, QString> referrals[] = {
        {MasterKinds::itemType(), 7, u"UPDATE Item SET ItemTypeID = 7 WHERE ItemID = 3"_s,
         u"'Dry'...\nItem(s) exist for this item type"_s},
        {MasterKinds::location(), 2, u"INSERT INTO IAdjust (AdjustmentID, WarehouseID) VALUES (1, 2)"_s,
         u"'Freezer'...\nAdjustments exist for this location"_s},
        {MasterKinds::location(), 2, u"INSERT INTO IReceipt (ReceiptID, WarehouseID) VALUES (1, 2)"_s,
         u"'Freezer'...\nReceipts exist for this location"_s},
        {MasterKinds::location(), 2, u"INSERT INTO IHist (IHistID, WarehouseID) VALUES (1, 2)"_s,
         u"'Freezer'...\nHistory exists for this location"_s},
        {MasterKinds::tax(), 7, u"INSERT INTO ARInv (InvoiceID, Tax2ID) VALUES (1, 7)"_s,
         u"tax 'VAT'...\nInvoice(s) exist for this tax"_s},
        {MasterKinds::tax(), 7, u"UPDATE ARInv SET Tax1ID = 7, Tax2ID = NULL"_s,
         u"tax 'VAT'...\nInvoice(s) exist for this tax"_s},
        {MasterKinds::tax(), 7, u"INSERT INTO Customer (CustomerID, Tax2ID) VALUES (1, 7)"_s,
         u"tax 'VAT'...\nCustomer(s) exist for this tax"_s},
        {MasterKinds::tax(), 7, u"UPDATE Customer SET Tax1ID = 7, Tax2ID = NULL"_s,
         u"tax 'VAT'...\nCustomer(s) exist for this tax"_s},
        {MasterKinds::currency(), 4, u"INSERT INTO Customer (CustomerID, CurrencyID) VALUES (3, 4)"_s,
         u"'Old'...\nCustomer(s) exist for this currency"_s},
        {MasterKinds::currency(), 4, u"INSERT INTO Vendor (VendorID, CurrencyID) VALUES (9, 4)"_s,
         u"'Old'...\nVendor(s) exist for this currency"_s},
        {MasterKinds::currency(), 4, u"INSERT INTO Bank (BankID, CurrencyID) VALUES (9, 4)"_s,
         u"'Old'...\nBank(s) exist for this currency"_s},
        {MasterKinds::bank(), 7, u"INSERT INTO ARPmt (PaymentID, BankID) VALUES (1, 7)"_s,
         u"'First Bank'...\nAR payment(s) exist for this bank"_s},
        {MasterKinds::bank(), 7, u"INSERT INTO APCheq (ChequeID, BankID) VALUES (1, 7)"_s,
         u"'First Bank'...\nAP cheque(s) exist for this bank"_s},
    };
    for (const auto &[kind, key, referral, reason] : referrals) {
        kitchen.execute(referral);
        MasterList list(database, kind);
        list.open();
        ASSERT_TRUE(list.moveTo(key));
        EXPECT_EQ(refusalOf([&] { list.remove(prompts); }), u"Unable to delete %1 -> "_s.arg(reason));
        EXPECT_EQ(list.currentKey(), key) << "still there";
    }
}

TEST_P(Lists, DeleteAfterAskingWithAllThatBelongsToTheRecord)
{
    kitchen.execute(uR"(
        INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (1, 1, 5), (2, 1, 5), (1, 2, 9);
        INSERT INTO VBalance (VendorID, Balance) VALUES (1, 5), (2, 9);
        INSERT INTO VContact (VendorID, ContactID, FirstName) VALUES (1, 7, 'Mary'), (1, 8, 'Otto');
        INSERT INTO IReceipt (ReceiptID, VendorID) VALUES (1, 1);
        INSERT INTO IUsageDet (UsageID, Seq, ItemID) VALUES (1, 1, 2);
    )"_s);
    const std::tuple<const MasterKind &, int, QString> records[] = {
        {MasterKinds::item(), 2, u"A11: Bread"_s},
        {MasterKinds::itemType(), 7, u"Dry"_s},
        {MasterKinds::location(), 1, u"Office"_s},
        {MasterKinds::vendor(), 1, u"V1: First"_s},
        {MasterKinds::vendorContact(), 9, u"Ann Miller"_s},
        {MasterKinds::tax(), 7, u"VAT"_s},
        {MasterKinds::currency(), 4, u"Old"_s},
        {MasterKinds::bank(), 7, u"First Bank"_s},
    };
    for (const auto &[kind, key, name] : records) {
        MasterList list(database, kind);
        list.open();
        ASSERT_TRUE(list.moveTo(key)) << name.toStdString();
        prompts.ok = false;
        EXPECT_EQ(refusalOf([&] { list.remove(prompts); }), u"silent -> ");
        EXPECT_EQ(prompts.take(), QStringList(u"Confirm: Delete '%1'?"_s.arg(name)));
        EXPECT_EQ(list.currentKey(), key);
        prompts.ok = true;
        list.remove(prompts);
        EXPECT_FALSE(list.moveTo(key));
        prompts.said.clear();
    }
    EXPECT_EQ(kitchen.rows(u"SELECT ContactID FROM VContact"_s), QStringList());
    EXPECT_EQ(kitchen.rows(u"SELECT ItemID, WarehouseID FROM IBalance"_s), QStringList{u"1|2"_s});
    EXPECT_EQ(kitchen.rows(u"SELECT VendorID FROM VBalance"_s), QStringList{u"2"_s});
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IReceipt"_s), 1);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IUsageDet"_s), 1);

    MasterList empty(database, MasterKinds::bank());
    empty.open();
    empty.remove(prompts);
    EXPECT_EQ(prompts.said, QStringList());
}
