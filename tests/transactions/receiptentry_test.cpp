#include "transactions/kinds/receiptentry.h"

#include "tests/support/documents.h"
#include "tests/support/givenrules.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;
using Engine::TableState;
using Engine::Value;

namespace {

void changeLine(ReceiptEntry &entry, int line, QStringView field, const Value &value)
{
    entry.lines().moveTo(line);
    entry.lines().edit();
    entry.lines().set(field, value);
    entry.lines().post();
}

struct Entry : KitchenTest
{
    Entry()
        : entry(kitchen.database(), prompts)
    {
        kitchen.session().clock = [] { return QDate(2026, 8, 9).startOfDay(); };
        entry.open();
    }

    void company(const QString &assignments) { kitchen.execute(u"UPDATE Company SET "_s + assignments); }
    // A new receipt, complete but for what the test spoils.
    void newReceipt()
    {
        entry.newDocument();
        entry.chooseVendorByNumber(u"V1"_s);
        entry.header().set(u"WarehouseID", 2);
        addLine(1, 5, 3.25);
    }
    void addLine(int item, double quantity, double cost)
    {
        enterLine(entry, item, quantity, cost);
        entry.lines().post();
    }
    ReceiptEntry entry;
};
ON_BOTH_STORES(Entry);

TEST_P(Entry, ANewReceiptIsNumberedDatedAndSaved)
{
    kitchen.execute(u"INSERT INTO ItemCtl (NextInvReceiptID, NextInvReceiptNo) VALUES (40, 4999)"_s);
    newReceipt();
    entry.cancel();
    EXPECT_EQ(
        kitchen.number(u"SELECT count(*) FROM IReceipt"_s) + kitchen.number(u"SELECT count(*) FROM IRecDet"_s), 0);
    entry.newDocument();
    EXPECT_EQ(entry.closing(), DocumentEntry::Closing::Drop);
    EXPECT_EQ(entry.caption(), u"New Inventory Receipt");
    entry.cancel();
    newReceipt();
    EXPECT_EQ(entry.caption(), u"Receipt 5001");
    addLine(2, -1, 0);
    entry.save();

    EXPECT_EQ(
        kitchen.found(
            u"SELECT ReceiptID, ReceiptNo, GLYear, GLPeriod, ReceiptDate, VendorID, WarehouseID, CASE WHEN Posted "
            "= false THEN 'open' END FROM IReceipt"_s),
        u"42|5001|2026|3|2026-08-09|1|2|open");
    EXPECT_EQ(kitchen.lines(42), (QStringList{u"1|1|5|3.25"_s, u"2|2|-1|0"_s}));
    EXPECT_EQ(kitchen.found(u"SELECT NextInvReceiptID, NextInvReceiptNo FROM ItemCtl"_s), u"43|5002");
    EXPECT_TRUE(entry.wasSaved());
    EXPECT_EQ(entry.closing(), DocumentEntry::Closing::Free);
}

TEST_P(Entry, HeaderChecksSpeakInTheirOrder)
{
    const auto none = [] {};
    const QString unchanged = u"CompanyNo = 1"_s;
    const auto set = [&](const QString &field, const Value &value) {
        return [=, this] { entry.header().set(field, value); };
    };
    const QString notAllowed =
        u"GL Period is not within allowed range \nas defined by \"Your Company\" -> GLPeriod"_s;
    const QString askedAndCancelled = u"silent -> GLPeriod"_s;
    const QString question = u"Warning: GL Period is not within expected range \nas defined by \"Your Company\"."_s;
    // The settings that are changed, and what is spoilt.
    const std::tuple<const char *, QString, std::function<void()>, QString> cases[] = {
        {"no vendor", u"FiscalYear = 0"_s, [&] { entry.chooseVendorByNumber({}); }, // which comes first
         u"Field 'Vendor' must have a value -> VendorNo"_s},
        {"no fiscal year", u"FiscalYear = NULL"_s, none,
         u"Current fiscal year is not yet defined...\nSee \"Your Company\" -> GLPeriod"_s},
        {"before the fiscal year", u"EPeriodToYYYY = 2020"_s, set(u"GLYear"_s, 2025),
         u"GL Period is prior to current fiscal year \nas defined by \"Your Company\" -> GLPeriod"_s},
        {"below the allowed range", u"EPeriodFromYYYY = 2026, EPeriodFromPP = 4"_s, none, notAllowed},
        {"above the allowed range", u"EPeriodToYYYY = 2026, EPeriodToPP = 2"_s, none, notAllowed},
        {"at the end of the allowed range", u"EPeriodToYYYY = 2026, EPeriodToPP = 3"_s, none, {}},
        {"below the expected range", u"WPeriodFromYYYY = 2026, WPeriodFromPP = 4"_s, none, askedAndCancelled},
        {"at both ends of the expected range",
         u"WPeriodFromYYYY = 2026, WPeriodFromPP = 3, WPeriodToYYYY = 2026, WPeriodToPP = 3"_s,
         none,
         {}},
        {"above the expected range", u"WPeriodToYYYY = 2026, WPeriodToPP = 2"_s, none, askedAndCancelled},
        {"vendor gone", unchanged, [&] { kitchen.execute(u"DELETE FROM Vendor WHERE VendorID = 1"_s); },
         u"Vendor no longer exists -> VendorNo"_s},
        {"location gone", unchanged, set(u"WarehouseID"_s, 77), u"Warehouse no longer exists -> WarehouseID"_s},
        {"no lines", unchanged, [&] { entry.removeLine(); }, u"Quantities have not been entered -> Lines"_s},
        {"no number", unchanged, set(u"ReceiptNo"_s, {}), u"Field 'Receipt no.' must have a value -> ReceiptNo"_s},
        {"no period", unchanged, set(u"GLPeriod"_s, {}), u"Field 'Period' must have a value -> GLPeriod"_s},
    };
    for (const auto &[name, settings, spoil, refusal] : cases) {
        SCOPED_TRACE(name);
        company(u"FiscalYear = 2026, EPeriodFromYYYY = NULL, EPeriodFromPP = NULL, EPeriodToYYYY = NULL, "
                "EPeriodToPP = NULL, WPeriodFromYYYY = NULL, WPeriodFromPP = NULL, WPeriodToYYYY = NULL, "
                "WPeriodToPP = NULL"_s);
        newReceipt();
        company(settings);
        spoil();
        prompts.take();
        prompts.ok = false;
        EXPECT_EQ(refusalOf([&] { entry.save(); }), refusal);
        EXPECT_EQ(entry.header().state() == TableState::Insert, !refusal.isEmpty());
        const bool asks = refusal == askedAndCancelled;
        EXPECT_EQ(prompts.told(), asks ? question : QString());
        prompts.ok = true;
        EXPECT_TRUE(!asks || refusalOf([&] { entry.save(); }).isEmpty()) << "the user insists";
        entry.cancel();
        kitchen.execute(
            u"DELETE FROM Vendor WHERE VendorID = 1; INSERT INTO Vendor (VendorID, VendorNo, VendorName) "
            "VALUES (1, 'V1', 'First')"_s);
    }
}

// Letter case counts only between numbers that differ in nothing else.
TEST_P(Entry, ItemsAreChosenByNumberAndCheckedWithTheirLine)
{
    const auto choose = [this](const QString &number) {
        entry.chooseItemByNumber(number);
        return entry.lines().text(u"ItemDescription");
    };
    entry.newDocument();
    entry.newLine();
    EXPECT_EQ(choose(u"a11"_s), u"Bread");
    kitchen.execute(u"INSERT INTO Item (ItemID, ItemNo, ItemDescription) VALUES (5, 'a11', 'small')"_s);
    EXPECT_EQ(choose(u"a11"_s), u"small");
    const QString undo = u"...\nMake changes or press Esc to undo -> "_s;
    const auto post = [this] { return refusalOf([&] { entry.lines().post(); }); };
    EXPECT_EQ(post(), u"Field 'Quantity' must have a value"_s + undo + u"QtyReceived"_s);
    entry.lines().set(u"QtyReceived", 1.0);
    EXPECT_EQ(choose({}), QString());
    EXPECT_THROW(entry.chooseItem(99), RuleError);
    entry.setLineColumn(u"QtyReceived"_s);
    entry.chooseItem(99);
    EXPECT_EQ(post(), u"Item not found"_s + undo + u"ItemNo"_s);
    EXPECT_NO_THROW(entry.chooseItem(4)) << "suspended, but put in by a program";
}

TEST_P(Entry, CancelBringsTheLinesBack)
{
    kitchen.addReceipt(0, 1, 1, {{1, 1, 1.5}, {2, 2, 2}, {3, 3, 3}});
    kitchen.execute(u"DELETE FROM IRecDet WHERE ReceiptID = 0 AND Seq = 2"_s);
    const QStringList before = kitchen.lines(0);
    ASSERT_TRUE(entry.openDocument(0));

    changeLine(entry, 0, u"QtyReceived", 9.0);
    addLine(2, 7, 7);
    EXPECT_EQ(kitchen.lines(0), (QStringList{u"1|1|9|1.5"_s, u"3|3|3|3"_s, u"4|2|7|7"_s}));
    entry.lines().first();
    entry.removeLine();
    entry.newLine(); // left in the middle
    entry.header().set(u"PurchaseOrderNo", u"late"_s);
    EXPECT_EQ(entry.closing(), DocumentEntry::Closing::Ask);

    entry.cancel();

    EXPECT_EQ(kitchen.lines(0), before);
    EXPECT_EQ(kitchen.text(u"SELECT PurchaseOrderNo FROM IReceipt"_s), QString());
    EXPECT_EQ(entry.closing(), DocumentEntry::Closing::Free);
    // The next visit takes its copy anew.
    ASSERT_TRUE(entry.openDocument(0));
    addLine(2, 7, 7);
    entry.save();
    EXPECT_EQ(kitchen.lines(0), before + QStringList(u"4|2|7|7"_s));
}

// Two users have a receipt open; the other one is first to change and save it.
TEST_P(Entry, LinesThatAnotherUserHasSavedStay)
{
    kitchen.addReceipt(7, 1, 1, {{1, 5, 3}, {2, 4, 1}, {3, 2, 2}});
    const auto other = kitchen.anotherUser();
    ReceiptEntry theirs(other->database, prompts);
    theirs.open();
    const auto open = [&] {
        ASSERT_TRUE(entry.openDocument(7) && theirs.openDocument(7));
        ASSERT_EQ(entry.lines().recordCount(), theirs.lines().recordCount());
    };
    open();
    changeLine(theirs, 0, u"QtyReceived", 50.0);
    theirs.lines().moveTo(2);
    theirs.removeLine();
    enterLine(theirs, 1, 1.0, 9.0);
    theirs.save();
    const QStringList saved = kitchen.lines(7);
    ASSERT_EQ(saved, (QStringList{u"1|1|50|3"_s, u"2|2|4|1"_s, u"4|1|1|9"_s}));

    changeLine(entry, 1, u"QtyReceived", 8.0);
    EXPECT_EQ(entry.lines().integer(u"Seq"), 2);
    EXPECT_EQ(entry.lines().valueAt(0, entry.lines().fieldIndex(u"QtyReceived")).toDouble(), 50);
    entry.cancel();
    EXPECT_EQ(kitchen.lines(7), saved);

    // What is about to be changed is gone by then, or another line has its number.
    const QString gone = u"This line was deleted or replaced by another user. The lines are shown anew. -> Lines"_s;
    const std::pair<const char *, std::function<void()>> cases[] = {
        {"deleted", [&] { theirs.lines().first(), theirs.removeLine(); }},
        {"replaced", [&] { changeLine(theirs, 0, u"ItemID", 3); }}};
    for (const auto &[name, happens] : cases) {
        SCOPED_TRACE(name);
        open();
        entry.lines().first();
        ASSERT_FALSE(entry.lines().value(u"ItemID").isNull()) << "looked at";
        happens();
        theirs.save();
        const QStringList now = kitchen.lines(7);
        EXPECT_EQ(refusalOf([&] { entry.removeLine(); }), gone);
        EXPECT_EQ(kitchen.lines(7), now);
        EXPECT_EQ(entry.closing(), DocumentEntry::Closing::Free);
        entry.removeLine();
        EXPECT_EQ(kitchen.lines(7), now.mid(1));
        entry.cancel();
        EXPECT_EQ(kitchen.lines(7), now);
    }
}

TEST_P(Entry, ATakenNumberOfALineIsNotToldAsTheReceiptsAndGivenAnew)
{
    newReceipt();
    addLine(2, 1, 1);
    enterLine(entry, 3, 2.0, 4.0);
    kitchen.execute(
        u"INSERT INTO IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost) VALUES (%1, 3, 1, 9, 9)"_s,
        entry.key());
    EXPECT_EQ(refusalOf([&] { entry.lines().post(); }), // as leaving the line does
              u"The line could not be saved because another one was added meanwhile. Try again. -> Lines");
    entry.save();
    EXPECT_EQ(kitchen.lines(entry.key()), (QStringList{u"1|1|5|3.25"_s, u"2|2|1|1"_s, u"3|1|9|9"_s, u"4|3|2|4"_s}));
}

// On a server a connection can be lost with a document in edit.
struct EntryOnAServer : testing::Test
{
    EntryOnAServer()
    {
        kitchen.session().lockAttempts = 1;
        kitchen.addReceipt(7, 1, 1, {{1, 5, 1}, {2, 6, 1}});
        begin();
    }
    void begin()
    {
        entry.reset();
        entry = std::make_unique<ReceiptEntry>(kitchen.database(), prompts);
        entry->open();
        ASSERT_TRUE(entry->openDocument(7));
    }
    void change(double quantity) { changeLine(*entry, 0, u"QtyReceived", quantity); }
    // The connection is lost; a new one comes about when somebody has been told of it.
    void cut()
    {
        anna->database.connection();
        kitchen.admit(false);
        anna->endOtherSessions();
    }
    QStringList stored() { return rowsOf(anna->database, u"SELECT QtyReceived FROM IRecDet ORDER BY Seq"_s); }

    Kitchen kitchen{Store::Remote};
    std::unique_ptr<TestUser> anna = kitchen.anotherUser();
    SpokenPrompts prompts;
    std::unique_ptr<ReceiptEntry> entry;
};

TEST_F(EntryOnAServer, WhatIsInEditIsSavedOverANewConnection)
{
    entry->header().edit();
    entry->header().set(u"PurchaseOrderNo", u"P1"_s);
    change(50);
    anna->endOtherSessions();
    entry->save();
    EXPECT_EQ(stored(), (QStringList{u"50"_s, u"6"_s}));
    EXPECT_EQ(kitchen.text(u"SELECT PurchaseOrderNo FROM IReceipt"_s), u"P1");
}

TEST_F(EntryOnAServer, WhatOthersDoMeanwhileIsNotOverwrittenAndTold)
{
    const std::pair<QString, QStringList> cases[] = {
        {u"UPDATE IReceipt SET Posted = true"_s, {u"50"_s, u"6"_s}},
        {u"UPDATE IRecDet SET QtyReceived = 60 WHERE Seq = 2"_s, {u"50"_s, u"60"_s}},
        {u"UPDATE IRecDet SET QtyReceived = 5 WHERE Seq = 1"_s, {u"5"_s, u"6"_s}}, // as it was
        {u"INSERT INTO IRecDet (ReceiptID, Seq, QtyReceived) VALUES (7, 3, 8)"_s, {u"50"_s, u"6"_s, u"8"_s}},
        {u"DELETE FROM IReceipt"_s, {u"50"_s, u"6"_s}},
    };
    for (const auto &[meanwhile, stays] : cases) {
        for (const bool isTold : {true, false}) { // or connected again before
            SCOPED_TRACE(qPrintable(meanwhile));
            change(50);
            cut();
            if (isTold) {
                EXPECT_EQ(errorOf([&] { entry->save(); }), ErrorCode::ConnectionLost);
            }
            kitchen.admit(true);
            anna->database.connection().execute(meanwhile);
            QString refusal;
            EXPECT_TRUE(errorOf([&] { refusal = refusalOf([&] { entry->save(); }); }) || !refusal.isEmpty());
            entry->cancel();
            EXPECT_EQ(stored(), stays);
            EXPECT_TRUE(has(prompts.last(), u"Lines changed: 1."_s));
            EXPECT_EQ(entry->closing(), DocumentEntry::Closing::Free);
            anna->database.connection().execute(u"DELETE FROM IRecDet; DELETE FROM IReceipt"_s);
            kitchen.addReceipt(7, 1, 1, {{1, 5, 1}, {2, 6, 1}});
            begin();
        }
    }
    // Somebody is at it now: what has been entered can be taken back once he is through.
    change(50);
    cut();
    kitchen.admit(true);
    Engine::LockManager &locks = anna->database.connection().locks();
    ASSERT_TRUE(locks.tryLockRecord(u"IReceipt"_s, {7}));
    prompts.take();
    prompts.retries = 1;
    prompts.onRetry = [&] { locks.unlockRecord(u"IReceipt"_s, {7}); };
    entry->cancel();
    EXPECT_TRUE(has(prompts.last(), u"'Receipt 1007' is being edited by another user (anna on"_s));
    EXPECT_EQ(stored(), (QStringList{u"5"_s, u"6"_s}));
}

// The answer to the saving may be all that was lost.
TEST_F(EntryOnAServer, ANewReceiptThatWasStoredUnnoticedIsToldAsSaved)
{
    entry->newDocument();
    entry->chooseVendorByNumber(u"V1"_s);
    entry->header().set(u"WarehouseID", 1);
    enterLine(*entry, 1, 3.0, 1.0);
    entry->lines().post();
    const int key = entry->key();
    anna->database.connection().execute(
        u"INSERT INTO IReceipt (ReceiptID, ReceiptNo, Posted) VALUES (%1, '%2', true)"_s.arg(
            QString::number(key), entry->header().text(u"ReceiptNo")));
    cut();
    EXPECT_EQ(errorOf([&] { entry->save(); }), ErrorCode::ConnectionLost);
    kitchen.admit(true);
    const QString told =
        u"The document had been saved before the connection was lost. Close this screen with Cancel "
        "and open the document anew. -> "_s;
    EXPECT_EQ(refusalOf([&] { entry->save(); }), told);
    EXPECT_EQ(refusalOf([&] { enterLine(*entry, 1, 3.0, 1.0); }), told) << "it is not locked any more";
    entry->cancel();
    EXPECT_EQ(stored(), (QStringList{u"5"_s, u"3"_s, u"6"_s})) << "all that was stored stays";
}

TEST_F(EntryOnAServer, AReceiptThatWasStoredUnnoticedIsNobodyElsesChange)
{
    for (const bool cancelled : {true, false}) {
        begin();
        change(cancelled ? 50 : 60);
        const QString number = cancelled ? u"P1"_s : u"P2"_s;
        entry->header().set(u"PurchaseOrderNo", number);
        GivenRules unanswered;
        Engine::RecordRules *const checks = std::exchange(entry->header().rules, &unanswered);
        unanswered.aroundPost = [&](const auto &save) {
            checks->post([&] {
                cut();
                anna->database.connection().execute(u"UPDATE IReceipt SET PurchaseOrderNo = '%1'"_s.arg(number));
                save();
            });
        };
        EXPECT_EQ(errorOf([&] { entry->save(); }), ErrorCode::ConnectionLost);
        kitchen.admit(true);
        entry->header().rules = checks;
        if (cancelled)
            entry->cancel();
        else
            entry->save();
        const QString told = prompts.told();
        EXPECT_EQ(told.contains(u"warn: The document had been saved before the connection was lost. It stays."_s),
                  cancelled)
            << qPrintable(told);
        EXPECT_EQ(stored(), (QStringList{cancelled ? u"50"_s : u"60"_s, u"6"_s}));
        kitchen.expectNoLocks();
    }
}

} // namespace
