#include "master/masterlist.h"

#include "master/masterkinds.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Lists : KitchenTest
{
    Lists()
    {
        kitchen.makeHost();
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
        {MasterKinds::itemType(), 7, u"Item (ItemID, ItemTypeID)"_s, u"Item(s) exist for this item type"_s},
        {MasterKinds::location(), 2, u"IAdjust (AdjustmentID, WarehouseID)"_s,
         u"Adjustments exist for this location"_s},
        {MasterKinds::location(), 2, u"IReceipt (ReceiptID, WarehouseID)"_s, u"Receipts exist for this location"_s},
        {MasterKinds::location(), 2, u"IHist (IHistID, WarehouseID)"_s, u"History exists for this location"_s},
        {MasterKinds::tax(), 7, u"ARInv (InvoiceID, Tax2ID)"_s, u"Invoice(s) exist for this tax"_s},
        {MasterKinds::tax(), 8, u"ARInv (InvoiceID, Tax1ID)"_s, u"Invoice(s) exist for this tax"_s},
        {MasterKinds::tax(), 7, u"Customer (CustomerID, Tax2ID)"_s, u"Customer(s) exist for this tax"_s},
        {MasterKinds::tax(), 8, u"Customer (CustomerID, Tax1ID)"_s, u"Customer(s) exist for this tax"_s},
        {MasterKinds::currency(), 4, u"Customer (CustomerID, CurrencyID)"_s,
         u"Customer(s) exist for this currency"_s},
        {MasterKinds::currency(), 4, u"Vendor (VendorID, CurrencyID)"_s, u"Vendor(s) exist for this currency"_s},
        {MasterKinds::currency(), 4, u"Bank (BankID, CurrencyID)"_s, u"Bank(s) exist for this currency"_s},
        {MasterKinds::bank(), 7, u"ARPmt (PaymentID, BankID)"_s, u"AR payment(s) exist for this bank"_s},
        {MasterKinds::bank(), 7, u"APCheq (ChequeID, BankID)"_s, u"AP cheque(s) exist for this bank"_s},
    };
    kitchen.execute(u"INSERT INTO Tax (TaxID, TaxName) VALUES (8, 'GST')"_s);
    int row = 100;
    for (const auto &[kind, key, fields, reason] : referrals) {
        kitchen.execute(u"INSERT INTO %1 VALUES (%2, %3)"_s, fields, ++row, key);
        MasterList list(database, kind);
        list.open();
        ASSERT_TRUE(list.moveTo(key));
        const QString refusal = u"'%1'...\n%2 -> "_s.arg(list.currentName(), reason);
        EXPECT_TRUE(refusalOf([&] { list.remove(prompts); }).endsWith(refusal)) << refusal.toStdString();
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
        EXPECT_EQ(prompts.told(), u"Confirm: Delete '%1'?"_s.arg(name));
        EXPECT_EQ(list.currentKey(), key);
        prompts.ok = true;
        list.remove(prompts);
        EXPECT_FALSE(list.moveTo(key));
        prompts.said.clear();
    }
    EXPECT_EQ(kitchen.found(u"SELECT ContactID FROM VContact"_s), QString());
    EXPECT_EQ(kitchen.balances(), u"1|2|9");
    EXPECT_EQ(kitchen.found(u"SELECT VBalance.VendorID, ReceiptID, UsageID FROM VBalance, IReceipt, IUsageDet"_s),
              u"2|1|1");

    MasterList empty(database, MasterKinds::bank());
    empty.open();
    empty.remove(prompts);
    EXPECT_EQ(prompts.said, QStringList());
}
