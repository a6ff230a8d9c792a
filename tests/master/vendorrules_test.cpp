#include "master/masterkinds.h"
#include "master/masterlist.h"
#include "master/masterrecord.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Vendors : KitchenTest
{
    Vendors()
    {
        kitchen.makeHost();
        vendor.open();
        list.open();
    }
    QString enter(const QString &field, const Engine::Value &value)
    {
        if (!vendor.table().isEditing())
            vendor.table().edit();
        return refusalOf([&] { vendor.table().set(field, value); });
    }

    Engine::Database &database = kitchen.database();
    MasterRecord vendor{database, MasterKinds::vendor()};
    MasterList list{database, MasterKinds::vendor()};
};
ON_BOTH_STORES(Vendors);

} // namespace

TEST_P(Vendors, WithInvoicesKeepTheirCurrency)
{
    kitchen.execute(u"INSERT INTO APInv (InvoiceID, VendorID) VALUES (7, 2)"_s);
    const QString refused = u"Currency cannot be changed... \nInvoice(s) already exist -> CurrencyID"_s;
    ASSERT_TRUE(vendor.openRecord(2));
    EXPECT_EQ(enter(u"CurrencyID"_s, 1), refused);
    EXPECT_EQ(enter(u"CurrencyID"_s, {}), refused);
    EXPECT_EQ(enter(u"CurrencyID"_s, 2), QString()) << "no change";
    EXPECT_EQ(vendor.table().integer(u"CurrencyID"), 2);
    vendor.table().set(u"VendorName", u"Renamed"_s);
    vendor.save();

    ASSERT_TRUE(vendor.openRecord(1));
    EXPECT_EQ(enter(u"CurrencyID"_s, 3), QString()) << "no invoices of this one";
    kitchen.execute(u"INSERT INTO APInv (InvoiceID, VendorID) VALUES (9, 1)"_s);
    EXPECT_EQ(refusalOf([&] { vendor.save(); }), refused) << "meanwhile there is one";
    vendor.cancel();
    vendor.newRecord();
    EXPECT_EQ(enter(u"CurrencyID"_s, 3), QString());
    kitchen.execute(u"INSERT INTO APInv (InvoiceID, VendorID) VALUES (8, %1)"_s, vendor.key());
    EXPECT_EQ(enter(u"CurrencyID"_s, 1), QString()) << "new";
}

TEST_P(Vendors, KeepPagesWithoutTheirBeginningAndCodesInCapitals)
{
    ASSERT_TRUE(vendor.openRecord(1));
    vendor.table().edit();
    const std::tuple<QStringView, QString, QString> entries[] = {
        {u"WebPage", u"http://abcdefghijklmnopqrstuvwxyz"_s, u"abcdefghijklmnopqrstuv"_s},
        {u"WebPage", u"see http://a.example"_s, u"p://a.example"_s}, // the first seven, whatever they are
        {u"WebPage", u"www.a.example/100%?x=1;y='2'"_s, u"www.a.example/100%?x=1;y='2'"_s},
        {u"WebPage", u"https://abcdefghijklmno.exampl"_s, u"https://abcdefghijklmno.exampl"_s},
        {u"ZipCode", u"k1a 0b1"_s, u"K1A 0B1"_s},
    };
    for (const auto &[field, typed, kept] : entries) {
        vendor.table().setText(field, typed);
        EXPECT_EQ(vendor.table().text(field), kept);
    }
    vendor.table().setText(u"WebPage", {});
    EXPECT_TRUE(vendor.table().value(u"WebPage").isNull());
}

TEST_P(Vendors, AreListedWithTheirBalances)
{
    kitchen.execute(u"INSERT INTO VBalance (VendorID, Balance) VALUES (2, -1234.5), (1, 0)"_s);
    list.table().refresh();
    for (const auto &[key, balance] : {std::pair(1, u"0.00"_s), {2, u"(1,234.50)"_s}, {3, QString()}}) {
        ASSERT_TRUE(list.moveTo(key));
        EXPECT_EQ(list.table().field(u"Balance").displayText(list.table().value(u"Balance")), balance);
    }
    const MasterKind &kind = MasterKinds::vendor();
    EXPECT_EQ(kind.filterExpression({3, ListFilter::Marked::No}), u"(CurrencyID = 3) AND (Suspended <> true)");
    EXPECT_EQ(kind.filterExpression({0, ListFilter::Marked::Yes}), u"(Suspended = true)");
}

TEST_P(Vendors, AreNotDeletedWhileTheirContactIsEdited)
{
    kitchen.session().lockAttempts = 1;
    kitchen.execute(uR"(
        INSERT INTO VContact (VendorID, ContactID, FirstName) VALUES (1, 7, 'Mary'), (1, 8, 'Otto');
        INSERT INTO VBalance (VendorID, Balance) VALUES (1, 5);
    )"_s);
    const auto anna = kitchen.anotherUser();
    MasterRecord contact(anna->database, MasterKinds::vendorContact());
    contact.open();
    ASSERT_TRUE(contact.openRecord(8));
    contact.table().edit();
    contact.table().set(u"LastName", u"Frey"_s);

    ASSERT_TRUE(list.moveTo(1));
    EXPECT_EQ(errorOf([&] { list.remove(prompts); }), Engine::ErrorCode::RecordLocked);
    EXPECT_EQ(kitchen.found(u"SELECT ContactID FROM VContact ORDER BY ContactID"_s), u"7 8");
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM VBalance"_s), 1);
    contact.save();
    list.remove(prompts);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM VContact"_s), 0);
}
