// Editing, inserting and deleting: what is written, what is refused, and what stays in hand then.

#include "engine/store/tablelocks.h"
#include "tests/engine/recordfixture.h"
#include "tests/support/givenrules.h"
#include "tests/support/madelayout.h"
#include "tests/support/theirtable.h"

#include <atomic>
#include <latch>
#include <QProcess>
#include <thread>

using namespace Engine;
using namespace Qt::StringLiterals;

TEST_P(RecordTest, PostsWhatWasSetAndNothingElse)
{
    opened();
    ASSERT_TRUE(vendors.findKey({3}));
    vendors.edit();
    vendors.set(u"VendorName", u"Bell"_s);
    EXPECT_FALSE(vendors.isModified()) << "the value it has";
    vendors.set(u"Discount", 0.1);
    vendors.set(u"Notes", u"tab\tquote'\"; --\nÄ𝄞"_s);
    vendors.setText(u"Since", u"2004-02-29"_s);
    vendors.setText(u"Suspended", u""_s);
    EXPECT_TRUE(vendors.isModified());
    EXPECT_TRUE(vendors.oldValue(u"Discount").isNull());
    // A column that the edit does not touch is not written back.
    store.execute(u"UPDATE Vendor SET Days = 30 WHERE VendorID = 3"_s);
    vendors.post();
    EXPECT_EQ(vendors.state(), TableState::Browse);
    const auto other = store.anotherUser();
    EXPECT_EQ(
        rowsOf(other->database, u"SELECT Discount, Since, Days, Suspended, Notes FROM Vendor WHERE VendorID = 3"_s),
        QStringList(u"0.1|2004-02-29|30||tab\tquote'\"; --\nÄ𝄞"_s));
}

TEST_P(RecordTest, ANewRecordTakesDefaultsNumberAndPlace)
{
    addVendors();
    documents.setIndex(u"VENDORID"_s);
    documents.open();
    GivenRules unposted;
    unposted.aroundInsert = [&](const auto &begin) {
        begin();
        documents.setDefault(u"Posted", false);
    };
    documents.rules = &unposted;
    for (const int vendor : {3, 1, 2}) {
        documents.insert();
        EXPECT_EQ(documents.state(), TableState::Insert);
        EXPECT_FALSE(documents.isModified());
        EXPECT_FALSE(documents.value(u"Posted").isNull());
        documents.set(u"VendorID", vendor);
        documents.post();
        EXPECT_GT(documents.integer(u"DocumentID"), 0);
        EXPECT_EQ(documents.integer(u"VendorID"), vendor);
    }
    EXPECT_EQ(documents.recordIndex(), 1) << "where the order puts it";
    EXPECT_EQ(names(documents, u"VendorID"_s), u"1 2 3"_s);

    documents.moveTo(1);
    documents.insert();
    documents.cancel();
    EXPECT_EQ(documents.integer(u"VendorID"), 2) << "back on the record before";
    documents.insert();
    documents.next(); // untouched: dropped
    EXPECT_EQ(documents.recordCount(), 3);
    begin(documents, {{u"VendorID"_s, 9}});
    documents.first(); // touched: saved
    EXPECT_EQ(names(documents, u"VendorID"_s), u"1 2 3 9"_s);
}

TEST_P(RecordTest, RefusesValuesThatDoNotFitAndNamesTheField)
{
    opened().field(u"VendorName").label = u"Vendor name"_s;
    vendors.edit();
    const QString before = vendors.text(u"VendorName");
    const std::tuple<QString, Value, QString> cases[] = {
        {u"VendorName"_s, QString(21, u'x'), u"Vendor name"_s},
        {u"Days"_s, 40000, u"Days"_s},
        {u"Since"_s, u"yesterday"_s, u"Since"_s},
        {u"Since"_s, QDate(10000, 1, 1), u"Since"_s},
        {u"Since"_s, QDate(-1, 1, 1), u"Since"_s},
        {u"Notes"_s, QString(u"a"_s + QChar(u'\0')), u"Notes"_s},
        {u"Notes"_s, QString(u"a"_s + QChar(0xD834)), u"Notes"_s}, // half a character
        {u"Balance"_s, u"1.2.3"_s, u"Balance"_s},
    };
    for (const auto &[field, value, named] : cases)
        EXPECT_TRUE(fails([&] { vendors.set(field, value); }, ErrorCode::BadValue, named));
    EXPECT_EQ(vendors.text(u"VendorName"), before);
    vendors.set(u"VendorName", QString::fromUcs4(U"𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞")); // twenty characters, forty units
    vendors.post();

    vendors.field(u"Days").validate = [](const Value &value) {
        if (value.toInt() > 90)
            throw std::runtime_error("too late");
    };
    vendors.edit();
    vendors.set(u"Days", 90);
    EXPECT_THROW(vendors.set(u"Days", 91), std::runtime_error);
    EXPECT_EQ(vendors.integer(u"Days"), 90);
}

TEST_P(RecordTest, ARecordThatIsGoneIsToldAndNoOtherTakenInstead)
{
    addVendors();
    const auto drop = [this](int vendor) { store.execute(u"DELETE FROM Vendor WHERE VendorID = %1"_s, vendor); };
    for (const auto &[vendor, rest] : {std::pair{3, u"1 2 4 5"_s}, {4, u"1 2 5"_s}}) {
        vendors.close();
        vendors.open();
        ASSERT_TRUE(vendors.findKey({vendor}));
        EXPECT_TRUE(vendor == 3 || vendors.recordIndex() == 2) << "the list is read";
        drop(vendor);
        vendors.remove();
        EXPECT_EQ(names(vendors, u"VendorID"_s), rest);
    }
    ASSERT_TRUE(vendors.findKey({5}));
    drop(5);
    EXPECT_EQ(errorOf([&] { vendors.edit(); }), ErrorCode::RecordGone);
    EXPECT_EQ(vendors.state(), TableState::Browse);
    ASSERT_TRUE(vendors.findKey({1}));
    vendors.edit();
    vendors.set(u"Days", 9);
    drop(1);
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::RecordGone);
    EXPECT_TRUE(vendors.isEditing());
    vendors.cancel();
}

// Such rows have no identity that stays: it is their key that finds them again.
TEST_P(RecordTest, RowsWithAKeyOfTextAreChangedByTheirKey)
{
    database().createTable(madeLayout(u"Code"_s, u"Code text 10, Name text 20"_s, u"Code primary"_s));
    store.execute(u"INSERT INTO Code (Code, Name) VALUES ('b', 'B'), ('d', 'D'), ('a', 'A')"_s);
    Table table(database(), u"Code"_s);
    table.open();
    ASSERT_TRUE(table.locate(u"Code"_s, {u"b"_s}));
    EXPECT_EQ(table.recordIndex(), 1);
    store.execute(u"UPDATE Code SET Name = 'theirs' WHERE Code = 'b'; INSERT INTO Code (Code) VALUES ('A')"_s);
    table.edit();
    EXPECT_EQ(table.text(u"Name"), u"theirs"_s) << "not the row that has come to stand in its place";
    table.set(u"Code", u"z"_s);
    table.post();
    EXPECT_EQ(names(table, u"Name"_s), u"- A D theirs"_s);
    table.remove();
    EXPECT_EQ(names(table, u"Code"_s), u"A a d"_s);
}

TEST_P(RecordTest, AFailedPostKeepsTheRecordInEdit)
{
    addVendors();
    vendors.uniqueFields = {u"VendorNo"_s};
    vendors.open();
    vendors.insert();
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::RequiredField);
    vendors.set(u"VendorID", 3);
    vendors.set(u"VendorNo", u"1009"_s);
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::KeyViolation);
    EXPECT_EQ(vendors.state(), TableState::Insert);
    vendors.set(u"VendorID", 6);
    vendors.set(u"VendorNo", u"1001"_s);
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::KeyViolation) << "the number is vendor 1's";
    EXPECT_EQ(vendors.text(u"VendorNo"), u"1001"_s);
    GivenRules refusing;
    refusing.aroundPost = [](const auto &) { throw std::runtime_error("no"); };
    vendors.rules = &refusing;
    EXPECT_THROW(vendors.post(), std::runtime_error);
    vendors.rules = nullptr;
    vendors.set(u"VendorNo", u""_s); // free for everybody
    vendors.post();
    EXPECT_EQ(vendors.recordCount(), 6);

    change(vendors, u"VendorNo", u"1006"_s);
    change(vendors, u"Days", 1); // its own number does not stand in its way
    vendors.edit();
    vendors.set(u"VendorID", 2);
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::KeyViolation);
    vendors.set(u"VendorID", 7);
    vendors.post();
    EXPECT_EQ(vendors.integer(u"VendorID"), 7);
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"1 2 3 4 5 7"_s);
}

TEST_P(RecordTest, OfTwoThatSaveOneNumberAtOnceOneIsRefused)
{
    constexpr int users = 4;
    for (int round = 0; round < 5; ++round) {
        std::latch start(users);
        std::atomic<int> saved = 0;
        std::vector<std::jthread> threads;
        for (int user = 0; user < users; ++user) {
            threads.emplace_back([&, user] {
                const auto me = store.anotherUser(u"user%1"_s.arg(user));
                Table table(me->database, u"Vendor"_s);
                table.uniqueFields = {u"VendorNo"_s};
                table.open();
                const int id = 100 + round * users + user;
                begin(table, {{u"VendorID"_s, id}, {u"VendorNo"_s, u"R%1"_s.arg(round)}});
                start.arrive_and_wait();
                const auto error = errorOf([&] { table.post(); });
                saved += error ? 0 : 1;
                EXPECT_TRUE(!error || error == ErrorCode::KeyViolation);
                table.cancel();
            });
        }
        threads.clear(); // when they have ended
        EXPECT_EQ(saved, 1);
    }
}

TEST_P(RecordTest, OnlyOneUserEditsARecord)
{
    TheirTable theirs(store, u"Vendor"_s);
    theirs.database().session().lockAttempts = 3;
    int waits = 0;
    theirs.database().session().waitFor = [&](std::chrono::milliseconds) { ++waits; };
    opened().edit();
    Table second(database(), u"Vendor"_s); // of the same connection
    second.open();
    EXPECT_EQ(errorOf([&] { theirs.edit(); }), ErrorCode::RecordLocked);
    EXPECT_EQ(waits, 2);
    store.session().waitFor = [](std::chrono::milliseconds) { ADD_FAILURE() << "waits for itself"; };
    EXPECT_TRUE(fails([&] { second.edit(); }, ErrorCode::RecordLocked, u"in another window"_s));
    store.session().waitFor = nullptr;
    EXPECT_EQ(errorOf([&] { theirs.remove(); }), ErrorCode::RecordLocked);
    EXPECT_EQ(errorOf([&] { Engine::TableLocks(theirs.database()).take(theirs.name()); }), ErrorCode::TableLocked);
    theirs.next();
    theirs.edit(); // another record
    theirs.cancel();
    vendors.cancel();
    theirs.first();
    change(theirs, u"VendorName", u"Changed"_s);
    int repainted = -1;
    QObject::connect(&vendors, &DataSet::rowChanged, &vendors, [&](int row) { repainted = row; });
    vendors.edit();
    EXPECT_EQ(vendors.text(u"VendorName"), u"Changed"_s) << "read afresh under the lock";
    EXPECT_EQ(repainted, 0) << "lists show it";
    vendors.cancel();

    auto whole = std::make_unique<Engine::TableLocks>(theirs.database());
    whole->take(theirs.name());
    EXPECT_EQ(errorOf([&] { vendors.edit(); }), ErrorCode::TableLocked);
    begin(vendors, {{u"VendorID"_s, 50}});
    EXPECT_EQ(errorOf([&] { vendors.post(); }), ErrorCode::TableLocked);
    vendors.cancel();
    EXPECT_EQ(errorOf([&] { vendors.removeAll(); }), ErrorCode::TableLocked);
    EXPECT_EQ(vendors.recordCount(), 5);
    change(theirs, u"Days", 1); // its own lock does not stand in its way
    whole.reset();
    vendors.edit();
}

// The holder, or what the one who waits stands on himself.
TEST_P(RecordTest, WhatDiesWhileALockIsWaitedForIsToldAndTheRestWorks)
{
    opened();
    store.session().lockAttempts = 1200;
    std::unique_ptr<TestUser> anna;
    const auto hold = [&] {
        anna = store.anotherUser();
        ASSERT_TRUE(anna->locks().tryLockRecord(u"Vendor"_s, {1}));
    };
    const auto pause = [&](const std::function<void()> &death) {
        store.session().waitFor = [death](std::chrono::milliseconds time) {
            death();
            std::this_thread::sleep_for(time * 10); // the server takes its time to notice
        };
    };
    hold();
    pause([&] { anna.reset(); });
    change(vendors, u"Days", 9);

    hold();
    const bool local = GetParam() == Store::Local;
    pause([&] {
        if (local)
            QProcess::execute(
                u"sh"_s,
                {u"-c"_s, u"cd \"$0\" && cp Corvane.sqlite new && mv new Corvane.sqlite"_s, store.directory()});
        else if (const auto leaving = std::move(anna))
            leaving->endOtherSessions();
    });
    if (local) {
        EXPECT_EQ(errorOf([&] { vendors.edit(); }), ErrorCode::FileReplaced);
        EXPECT_EQ(vendors.state(), TableState::Browse);
    } else { // over a new connection
        vendors.edit();
        EXPECT_EQ(vendors.integer(u"Days"), 9);
    }
}

TEST_P(RecordTest, OpensAsOthersAllow)
{
    const auto other = store.anotherUser();
    Table theirs(other->database, u"Vendor"_s);
    vendors.open();
    theirs.exclusive = true;
    EXPECT_EQ(errorOf([&] { theirs.open(); }), ErrorCode::TableInUse);
    EXPECT_FALSE(theirs.isOpen());
    vendors.close();
    theirs.open();
    EXPECT_EQ(errorOf([&] { vendors.open(); }), ErrorCode::TableInUse);
    begin(theirs, {{u"VendorID"_s, 1}});
    theirs.post();
    theirs.close();
    vendors.open();
    EXPECT_EQ(errorOf([&] { vendors.set(u"Days", 1); }), ErrorCode::WrongState);
    Table missing(database(), u"NoSuch"_s);
    EXPECT_EQ(errorOf([&] { missing.open(); }), ErrorCode::NoSuchTable);
}

TEST_P(RecordTest, DeletesTheRecordOrTheRowsOfTheSet)
{
    addDocuments();
    lines.open();
    lines.findKey({3, 2});
    lines.remove();
    EXPECT_EQ(lines.number(u"Quantity"), 33);
    lines.remove(); // the last: the one before becomes current
    EXPECT_EQ(lines.number(u"Quantity"), 31);
    lines.insert();
    lines.remove(); // a new record is dropped, nothing else
    EXPECT_EQ(names(lines, u"Quantity"_s), u"11 21 22 31"_s);
    lines.setRange({2}, {2});
    while (!lines.isEmpty())
        lines.remove();
    EXPECT_EQ(errorOf([&] { lines.remove(); }), ErrorCode::WrongState);
    lines.setRange({3}, {9});
    lines.removeAll();
    EXPECT_TRUE(lines.isEmpty());
    lines.setRange({}, {});
    EXPECT_EQ(names(lines, u"Quantity"_s), u"11"_s);
    lines.setFilter(u"Quantity = 12"_s);
    lines.setFiltered(true);
    lines.removeAll();
    lines.setFiltered(false);
    EXPECT_EQ(lines.recordCount(), 1);
}

TEST_P(RecordTest, JoinsATransactionThatIsOpen)
{
    opened();
    {
        Transaction transaction(database().connection());
        change(vendors, u"Days", 77);
        vendors.moveTo(5);
        vendors.remove();
    }
    vendors.refresh();
    EXPECT_EQ(vendors.recordCount(), 5);
    vendors.first();
    EXPECT_TRUE(vendors.value(u"Days").isNull()) << "rolled back with the transaction";
}
