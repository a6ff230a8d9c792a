#include "master/masterrecord.h"

#include "master/masterkinds.h"
#include "master/masterlist.h"
#include "master/recordnumber.h"
#include "tests/support/kitchen.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::Value;

namespace {

// What a record of a kind needs, in the order in which it is asked for.
QList<std::pair<QString, Value>> needs(const MasterKind &kind)
{
    static const QHash<QString, QList<std::pair<QString, Value>>> all = {
        {u"items"_s, {{u"ItemNo"_s, u"N1"_s}, {u"ItemDescription"_s, u"Flour"_s}, {u"ItemTypeID"_s, 2}}},
        {u"types"_s, {{u"TypeName"_s, u"Dry"_s}}},
        {u"locations"_s, {{u"WarehouseName"_s, u"Cellar"_s}}},
        {u"vendors"_s, {{u"VendorNo"_s, u"N1"_s}, {u"VendorName"_s, u"Mill"_s}, {u"CurrencyID"_s, 2}}},
        {u"contacts"_s, {{u"VendorID"_s, 1}, {u"FirstName"_s, u"Mary"_s}}},
        {u"taxes"_s,
         {{u"TaxName"_s, u"VAT"_s}, {u"TaxCode"_s, u"V"_s}, {u"TaxDescription"_s, u"Value"_s}, {u"Rate"_s, 0.5}}},
        {u"currencies"_s, {{u"CurrencyName"_s, u"Euro"_s}}},
        {u"banks"_s, {{u"BankName"_s, u"First Bank"_s}, {u"CurrencyID"_s, 2}}},
    };
    return all.value(kind.name);
}

struct Records : KitchenTest
{
    Records() { kitchen.makeHost(); }

    // A new record that lacks nothing.
    static void fill(MasterRecord &record)
    {
        record.newRecord();
        for (const auto &[field, value] : needs(record.kind()))
            record.table().set(field, value);
    }
    static QString refusal(MasterRecord &record)
    {
        return refusalOf([&] { record.save(); });
    }
    static QStringList filledFields(const Engine::Table &table)
    {
        QStringList fields;
        for (int i = 0; i < table.fieldCount(); ++i) {
            if (!table.value(i).toText().isEmpty())
                fields << table.field(i).name + u'=' + table.value(i).toText();
        }
        return fields;
    }
    QString counters() { return kitchen.rows(u"SELECT NextItemNo, NextItemID FROM ItemCtl"_s).value(0); }

    Engine::Database &database = kitchen.database();
};
ON_BOTH_STORES(Records);

} // namespace

TEST_P(Records, AskForWhatIsMissingOneAfterTheOther)
{
    for (const MasterKind *kind : MasterKinds::all()) {
        MasterRecord record(database, *kind);
        record.open();
        fill(record);
        for (const auto &[field, value] : needs(*kind))
            record.table().set(field, Engine::isText(record.table().field(field).type) ? Value(u" "_s) : Value());
        for (const auto &[field, value] : needs(*kind)) {
            EXPECT_TRUE(refusal(record).endsWith(u"must have a value -> "_s + field)) << field.toStdString();
            EXPECT_TRUE(record.isNew()) << "still to be mended";
            record.table().set(field, value);
        }
        record.save();
        EXPECT_TRUE(record.openRecord(record.key()));
        for (const auto &[field, value] : needs(*kind))
            EXPECT_EQ(record.table().value(field), value) << field.toStdString();
    }
}

TEST_P(Records, TellWhatElseIsWrong)
{
    MasterRecord item(database, MasterKinds::item());
    item.open();
    fill(item);
    EXPECT_EQ(refusalOf([&] { item.table().setText(u"TaxCodes", u"P1"_s); }),
              u"Tax Codes 'P1' may hold letters only -> TaxCodes"_s);
    item.table().setText(u"TaxCodes", u"PÉg"_s);
    item.table().set(u"ItemNo", u"a11"_s); // another number than "A11"
    EXPECT_EQ(refusal(item), QString());
    kitchen.execute(u"UPDATE Item SET TaxCodes = '7%' WHERE ItemNo = 'a11'"_s);
    item.table().edit();
    item.table().set(u"ItemDescription", u"Rye"_s);
    EXPECT_EQ(refusal(item), QString()) << "its own number is not taken, its old tax codes stay";

    kitchen.execute(u"DELETE FROM Currency WHERE CurrencyID = 2"_s);
    for (const MasterKind *kind : {&MasterKinds::bank(), &MasterKinds::vendor()}) {
        MasterRecord record(database, *kind);
        record.open();
        fill(record);
        EXPECT_EQ(refusal(record), u"Currency no longer exists -> CurrencyID");
    }
    MasterRecord tax(database, MasterKinds::tax());
    tax.open();
    fill(tax);
    tax.table().set(u"Rate", 0.0);
    EXPECT_EQ(refusal(tax), u"Field 'Rate' must have a value -> Rate");
}

// Of vendor 10001 there is only a contact left.
TEST_P(Records, PassOverKeysThatAreTaken)
{
    kitchen.execute(u"UPDATE Item SET ItemID = 9999 + ItemID; INSERT INTO Vendor (VendorID) VALUES (10000);"
                    "INSERT INTO VContact (VendorID, ContactID) VALUES (10001, 1)"_s);
    for (const auto &[kind, key] : {std::pair{&MasterKinds::item(), 10'004}, {&MasterKinds::vendor(), 10'002}}) {
        MasterRecord record(database, *kind);
        record.open();
        record.newRecord();
        EXPECT_EQ(record.key(), key);
    }
}

TEST_P(Records, AreCountedOnFromTheHighestKey)
{
    kitchen.execute(u"DELETE FROM Warehse"_s);
    MasterRecord first(database, MasterKinds::location());
    MasterRecord second(database, MasterKinds::location());
    for (MasterRecord *record : {&first, &second}) {
        record->open();
        fill(*record);
    }
    second.save();
    first.save();
    EXPECT_EQ(second.key(), 1) << "found when it is written";
    EXPECT_EQ(first.key(), 2);
}

TEST_P(Records, UseNumbersUp)
{
    // Number and key: in the counters, of the record, in the counters afterwards.
    const std::tuple<QString, QString, QString> cases[] = {
        {{}, u"1001|10000"_s, u"1002|10001"_s},
        {u"1000, 50"_s, u"1001|50"_s, u"1002|51"_s},
        {u"10000000, -7"_s, u"10000000|-7"_s, u"10000001|-6"_s},
        {u"10000001, NULL"_s, u"1001|10000"_s, u"1002|10001"_s},
    };
    MasterRecord item(database, MasterKinds::item());
    item.open();
    for (const auto &[before, taken, after] : cases) {
        kitchen.execute(u"DELETE FROM ItemCtl"_s);
        if (!before.isEmpty())
            kitchen.execute(u"INSERT INTO ItemCtl (NextItemNo, NextItemID) VALUES (%1)"_s, before);
        item.newRecord();
        EXPECT_EQ(u"%1|%2"_s.arg(item.table().text(u"ItemNo")).arg(item.key()), taken);
        item.cancel();
        EXPECT_EQ(counters(), after) << "also when the record is dropped";
    }
    item.newRecord(u"77"_s);
    EXPECT_EQ(item.table().text(u"ItemNo"), u"77");
    EXPECT_EQ(counters(), u"1002|10002");
}

TEST_P(Records, AreNotBegunWhereTheStoreIsLost)
{
    MasterRecord item(database, MasterKinds::item());
    MasterRecord vendor(database, MasterKinds::vendor());
    item.open();
    vendor.open();
    for (MasterRecord *record : {&item, &vendor}) {
        if (kitchen.store() == Store::Local) {
            QFile::rename(kitchen.directory() + u"/Corvane.sqlite"_s, kitchen.directory() + u"/moved"_s);
        } else {
            kitchen.execute(u"SELECT 1"_s); // connected again
            kitchen.anotherUser()->endOtherSessions();
        }
        const auto error = errorOf([&] { record->newRecord(); });
        const bool isConnectedAgain = !error && kitchen.store() == Store::Remote; // before anything was written
        EXPECT_TRUE(isConnectedAgain || error == Engine::ErrorCode::ConnectionLost
                    || error == Engine::ErrorCode::FileReplaced);
        EXPECT_EQ(record->isNew(), isConnectedAgain);
    }
}

TEST_P(Records, DoWithoutCountersUntilTheyAreSaved)
{
    TheirTable held(kitchen, u"ItemCtl"_s);
    int pauses = 0;
    kitchen.session().waitFor = [&](std::chrono::milliseconds) { ++pauses; };

    MasterRecord item(database, MasterKinds::item());
    item.open();
    item.newRecord();
    EXPECT_EQ(pauses, 149);
    EXPECT_EQ(filledFields(item.table()), QStringList{u"Suspended=false"_s});
    EXPECT_EQ(refusal(item), u"Field 'Item no.' must have a value -> ItemNo");
    item.table().set(u"ItemNo", u" 77 "_s);
    item.table().set(u"ItemDescription", u"Flour"_s);
    item.table().set(u"ItemTypeID", 1);
    EXPECT_EQ(errorOf([&] { item.save(); }), Engine::ErrorCode::TableInUse);
    EXPECT_EQ(item.table().text(u"ItemDescription"), u"Flour") << "nothing typed is lost";
    held.close();
    item.save();
    EXPECT_EQ(kitchen.found(u"SELECT ItemID, ItemNo FROM Item WHERE ItemNo = '77'"_s), u"10000|77");

    kitchen.execute(u"UPDATE Company SET DefaultCurrencyID = 3"_s);
    MasterRecord vendor(database, MasterKinds::vendor());
    vendor.open();
    vendor.newRecord();
    EXPECT_EQ(vendor.table().integer(u"CurrencyID"), 3);
}

TEST_P(Records, AreCopiedWithoutWhatIsTheirOwn)
{
    kitchen.execute(u"UPDATE Item SET TaxCodes = 'PG', UnitPrice = 2.5, WgtAvgCost = 1.5, StandardCost = 1.25, "
                    "Notes = 'Keep\ncool', SalesGLAccountID = 7 WHERE ItemID = 4"_s);
    MasterList list(database, MasterKinds::item());
    list.open();
    list.moveTo(4);
    MasterRecord copy(database, MasterKinds::item());
    copy.open();
    copy.newCopy(list.table());
    EXPECT_EQ(filledFields(copy.table()),
              (QStringList{u"ItemID=10000"_s, u"ItemNo=1001"_s, u"ItemDescription=Yeast"_s, u"TaxCodes=PG"_s,
                           u"UnitPrice=2.5"_s, u"Suspended=false"_s, u"Notes=Keep\ncool"_s, u"ItemTypeID=2"_s}));
    EXPECT_EQ(copy.caption(), u"New (copied) Item");
    EXPECT_FALSE(copy.table().isModified());
    copy.table().set(u"TaxCodes", u"P"_s);
    EXPECT_EQ(copy.caption(), u"Yeast");
}
