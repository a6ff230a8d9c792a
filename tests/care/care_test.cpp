#include "care/backup.h"
#include "care/repair.h"
#include "data/lastbackup.h"
#include "engine/store/dialect.h"
#include "tests/support/damage.h"
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Books of some posted and some unposted documents of every kind.
struct CareTest : KitchenTest
{
    CareTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = true"_s);
        std::mt19937 random(1); // always the same books: the tests name balances of them
        int id = 10'000;
        for (const bool posted : {true, false}) {
            for (const DocumentKind *kind : DocumentKinds::all()) {
                for (int count = 0; count < 3; ++count)
                    addRandomDocument(kitchen, *kind, ++id, 4, random);
                if (posted)
                    DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
            }
        }
    }

    QStringList check() // "balances: Apples (A10) at Office: ..."
    {
        found.clear();
        checkHeldBooks(kitchen.database(), progress, tell);
        return found;
    }
    RepairResult repair(const QString &backup)
    {
        found.clear();
        return repairBooks(kitchen.database(), backup, u"maria"_s, progress, tell);
    }

    // With the statements done exactly one thing is found, by the check and with the words. They are undone again.
    void expectFinding(const QString &name, const QString &statements, const QStringList &words)
    {
        SCOPED_TRACE(statements.toStdString());
        const Engine::Transaction transaction(kitchen.database().connection());
        kitchen.execute(statements);
        ASSERT_EQ(check().size(), 1) << found.join(u'\n').toStdString();
        EXPECT_TRUE(begins(found.first(), name + u':'));
        for (const QString &word : words)
            EXPECT_TRUE(has(found.first(), word));
    }

    // "ReceiptID = 10001", of the first document.
    QString keyOf(const DocumentKind &kind, bool posted)
    {
        return u"%1 = %2"_s.arg(kind.keyField,
                                kitchen.text(u"SELECT MIN(%1) FROM %2 WHERE Posted = %3"_s.arg(
                                    kind.keyField, kind.headerTable, posted ? u"true"_s : u"false"_s)));
    }

    QStringList found; // what has been told last
    const TellFinding tell = [this](const BookCheck &check, const BookFinding &finding) {
        found << check.name + ": "_L1 + finding.text();
    };
};

TEST_P(CareTest, FindsNothingInBooksThatAreSound) { EXPECT_EQ(check(), QStringList()); }

TEST_P(CareTest, FindsABalanceThatTheHistoryDoesNotComeTo)
{
    expectFinding(u"balances"_s,
                  u"UPDATE IBalance SET QtyOnHand = QtyOnHand + 7 WHERE ItemID = 1 AND WarehouseID = 1"_s,
                  {u"Apples (A10) at Office"_s, u"count 7 that"_s});
    expectFinding(u"balances"_s, u"DELETE FROM IBalance WHERE ItemID = 2 AND WarehouseID = 2"_s,
                  {u"Bread (A11) at Freezer"_s, u"On hand is 0"_s});
}

TEST_P(CareTest, FindsWhatDocumentsAndHistoryDoNotAgreeAbout)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const QString posted = keyOf(*kind, true);
        const QString unposted = keyOf(*kind, false);
        const QString title = Layouts::titleOf(kind->headerTable);
        const auto with = [](const QString &key) { return QString(key).remove(u" ="_s); };
        // As users know it, while its header is there.
        const auto named = [&](const QString &key) {
            return kind->entry.title.arg(
                kitchen.text(u"SELECT %1 FROM %2 WHERE %3"_s.arg(kind->shownField(), kind->headerTable, key)));
        };
        const QString postedName = named(posted);
        const QString unpostedName = named(unposted);
        const QString last = kitchen.text(u"SELECT MAX(IHistID) FROM IHist WHERE %1"_s.arg(posted));
        const int type = static_cast<int>(kind->posting.transType);
        const double moved = stockChange(
            kind->posting.transType, kitchen.number(u"SELECT Quantity FROM IHist WHERE IHistID = %1"_s.arg(last)));
        const auto expect = [&](const QString &name, QString statements, const QStringList &words) {
            for (const auto &[word, what] : {std::pair(u"$header"_s, kind->headerTable),
                                             {u"$lines"_s, kind->lineTable},
                                             {u"$posted"_s, posted},
                                             {u"$unposted"_s, unposted}})
                statements.replace(word, what);
            expectFinding(name, statements, words);
        };
        // As after a run that was broken off.
        expectFinding(
            u"documents"_s,
            u"UPDATE IBalance SET QtyOnHand = QtyOnHand - (%1) WHERE (ItemID, WarehouseID) = "
            "(SELECT ItemID, WarehouseID FROM IHist WHERE IHistID = %2); DELETE FROM IHist WHERE IHistID = %2"_s
                .arg(QString::number(moved), last),
            {postedName, with(posted), u"marked as posted, and not in the history"_s});
        expect(u"documents"_s, u"DELETE FROM $header WHERE $posted; DELETE FROM $lines WHERE $posted"_s,
               {title, with(posted), u"It is gone, and its history is there"_s});
        expect(u"documents"_s, u"UPDATE $header SET Posted = false WHERE $posted"_s,
               {postedName, with(posted), u"all of it is in the history"_s});
        expect(u"documents"_s, u"DELETE FROM $header WHERE $unposted"_s,
               {title, with(unposted), u"4 lines of it"_s});
        expect(u"documents"_s,
               u"DELETE FROM $header WHERE $unposted; INSERT INTO IBegun (TransType, DocumentID, SavedBy) "
               "VALUES (%1, %2, 'anna')"_s.arg(QString::number(type), unposted.section(u' ', -1)),
               {title, with(unposted), u"anna has begun it"_s, u"with 4 lines"_s});
        expect(u"references"_s, u"UPDATE $header SET WarehouseID = 77 WHERE $unposted"_s,
               {unpostedName, with(unposted), u"WarehouseID is 77"_s});
        expect(u"references"_s, u"UPDATE $lines SET ItemID = 77 WHERE $unposted AND Seq = 3"_s,
               {unpostedName, with(unposted), u"ItemID is 77"_s});
        expect(u"values"_s, u"UPDATE $lines SET ItemID = NULL WHERE $unposted AND Seq = 2"_s,
               {unpostedName, u"Seq 2"_s, u"ItemID is empty"_s});
        expect(u"values"_s, u"UPDATE $header SET GLPeriod = 13 WHERE $unposted"_s,
               {unpostedName, u"no period of a year"_s});
        if (kind->numberField)
            expect(
                u"numbers"_s,
                u"UPDATE $header SET %1 = (SELECT MAX(%1) FROM $header) WHERE $unposted"_s.arg(*kind->numberField),
                {title, u"is there 2 times"_s});
    }
}

TEST_P(CareTest, FindsWhatNoScreenLetsIn)
{
    expectFinding(u"numbers"_s, u"UPDATE Item SET ItemNo = 'A10' WHERE ItemID = 2"_s, {u"A10 is there 2 times"_s});
    expectFinding(u"references"_s, u"UPDATE Item SET ItemTypeID = 55 WHERE ItemID = 2"_s,
                  {u"A11: Bread (ItemID 2)"_s, u"ItemTypeID is 55"_s});
    expectFinding(u"counters"_s, u"DELETE FROM ItemCtl; INSERT INTO ItemCtl (NextItemID) VALUES (2)"_s,
                  {u"NextItemID stands at 2"_s});
    expectFinding(u"references"_s, u"INSERT INTO VContact (VendorID, LastName) VALUES (4711, 'Lee')"_s,
                  {u"ContactID 1"_s, u"VendorID is 4711"_s});
    expectFinding(u"references"_s, u"INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (1, 4711, 0)"_s,
                  {u"1 row names the location with the key 4711"_s});
    expectFinding(u"values"_s, u"UPDATE Item SET ItemDescription = NULL WHERE ItemID = 2"_s,
                  {u"A11"_s, u"ItemDescription is empty"_s});
    if (GetParam() == Store::Remote) {
        expectFinding(u"counters"_s, u"SELECT setval(pg_get_serial_sequence('ihist', 'ihistid'), 5)"_s,
                      {u"has given IHistID up to 5"_s});
        return; // keeps types and sizes by itself
    }
    expectFinding(u"values"_s, u"UPDATE Item SET ItemNo = 'an item number of many letters' WHERE ItemID = 2"_s,
                  {u"ItemID 2"_s, u"longer than 20 characters"_s});
    expectFinding(u"values"_s, u"UPDATE Item SET WgtAvgCost = 'dear' WHERE ItemID = 2"_s,
                  {u"ItemID 2"_s, u"WgtAvgCost"_s});
    for (const QString &date : {u"3/14/2026"_s, u"2026-02-31"_s})
        expectFinding(
            u"values"_s,
            u"UPDATE IReceipt SET ReceiptDate = '%1' WHERE Posted = false AND ReceiptID = (SELECT MAX(ReceiptID) FROM IReceipt)"_s
                .arg(date),
            {u"ReceiptDate is no date"_s});
}

TEST_P(CareTest, GoesOnWhereATableIsMissingAndNotWhereTheFileIs)
{
    kitchen.execute(u"ALTER TABLE ICounted RENAME TO Gone"_s);
    checkBooks(kitchen.database(), progress, tell);
    const QString told = found.join(u'\n');
    EXPECT_TRUE(found.size() > 1 && told.count(u"ICounted"_s, Qt::CaseInsensitive) == found.size())
        << told.toStdString();
    if (GetParam() == Store::Remote)
        return;
    CountedProgress replaced(0, [this] { QFile::remove(kitchen.directory() + "/Corvane.sqlite"_L1); });
    EXPECT_EQ(errorOf([&] { checkBooks(kitchen.database(), replaced, tell); }), Engine::ErrorCode::FileReplaced);
}

TEST_P(CareTest, MendsWhatHasOneRightAnswerAfterABackup)
{
    kitchen.makeHost();
    const QTemporaryDir folder;
    const QString backup = folder.filePath(u"before.sqlite"_s);
    EXPECT_EQ(repair(backup).mended, 0);
    EXPECT_FALSE(QFile::exists(backup));

    const DocumentKind &kind = *DocumentKinds::all().first();
    const QString posted = keyOf(kind, true);
    const QString unposted = keyOf(kind, false);
    for (const QString &statement :
         {u"UPDATE IBalance SET QtyOnHand = QtyOnHand + 7 WHERE ItemID = 1 AND WarehouseID = 1"_s,
          u"DELETE FROM IBalance WHERE ItemID = 2 AND WarehouseID = 2"_s, u"DELETE FROM ItemCtl"_s,
          u"INSERT INTO ItemCtl (NextItemID) VALUES (2)"_s,
          u"UPDATE %1 SET Posted = false WHERE %2"_s.arg(kind.headerTable, posted),
          u"DELETE FROM %1 WHERE %2"_s.arg(kind.headerTable, unposted),
          u"UPDATE Item SET ItemNo = 'A10' WHERE ItemID = 2"_s}) // which only the user can mend
        kitchen.execute(statement);
    const QStringList before = check();
    const QString balances = kitchen.balances();
    const auto anna = kitchen.anotherUser();
    {
        Engine::Table open(anna->database, kind.lineTable);
        open.open();
        EXPECT_THROW(repair(backup), Engine::EngineError); // she may be entering a document
    }
    EXPECT_EQ(check(), before);

    const RepairResult result = repair(backup);
    EXPECT_EQ(QList({result.mended, result.left, static_cast<int>(found.size())}), QList({3, 3, 6}));
    EXPECT_EQ(check().size(), 3);
    EXPECT_EQ(kitchen.balances(), balances) << "what is there, nobody but a count can tell";
    EXPECT_EQ(kitchen.found(u"SELECT COUNT(*) FROM %1 WHERE %2"_s.arg(kind.lineTable, unposted)), u"0"_s);
    EXPECT_EQ(kitchen.found(u"SELECT COUNT(*) FROM %1 WHERE %2 AND Posted = true"_s.arg(kind.headerTable, posted)),
              u"1"_s);
    const QString user = kitchen.database().connection().dialect().name(u"User"_s);
    EXPECT_EQ(kitchen.rows(u"SELECT %1 FROM History"_s, user), QStringList(3, u"maria"_s));
    TestStore old(Store::Local);
    restoreInto(old.database(), backup, u"maria"_s, progress);
    EXPECT_EQ(checkBooks(old.database(), progress, tell), before.size());
}

TEST_P(CareTest, BuildsDamagedIndexesAnewAndLeavesDamagedRowsToABackup)
{
    if (GetParam() == Store::Remote)
        GTEST_SKIP() << "the server looks after its own files";
    kitchen.makeHost();
    rememberBackup(kitchen.database());
    const QTemporaryDir folder;
    int repairs = 0;
    const auto repairAgain = [&] { return repair(folder.filePath(u"before-%1.sqlite"_s.arg(++repairs))); };
    const QStringList history = kitchen.rows(u"SELECT * FROM IHist NOT INDEXED ORDER BY IHistID"_s);
    const QString index =
        kitchen.text(u"SELECT name FROM sqlite_schema WHERE type = 'index' AND tbl_name = 'IHist' "
                     "AND name LIKE '%ITEMID'"_s);
    constexpr int kindOfPage = 0;
    constexpr int lastByte = -1; // of the page: a part of the entry that was made first
    for (const int byte : {kindOfPage, lastByte}) {
        SCOPED_TRACE(byte);
        flipByte(kitchen, index, byte);
        ASSERT_FALSE(isSound(kitchen));
        const bool isToldOf = check().join(u'\n').contains(u"A repair builds the indexes of these tables anew"_s);
        EXPECT_EQ(isToldOf, byte == kindOfPage) << "where entries stand a check does not look";
        const RepairResult result = repairAgain();
        EXPECT_TRUE(result.mended == 1 && result.left == 0);
        EXPECT_TRUE(isSound(kitchen));
        EXPECT_EQ(check(), QStringList());
        EXPECT_EQ(kitchen.rows(u"SELECT * FROM IHist NOT INDEXED ORDER BY IHistID"_s), history);
        EXPECT_TRUE(QFile::exists(folder.filePath(u"before-%1.sqlite"_s.arg(repairs))));
    }
    // One that has lost entries, which another index could answer for.
    const QString schema = u"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = %1 WHERE name = '%2'"_s;
    kitchen.execute(schema.arg(u"replace(sql, ')', ') WHERE ItemID > 1')"_s, index));
    kitchen.database().close();
    kitchen.execute(u"REINDEX"_s);
    kitchen.execute(schema.arg(u"replace(sql, ' WHERE ItemID > 1', '')"_s, index));
    kitchen.database().close();
    EXPECT_TRUE(check().join(u'\n').contains(u"the index %1 has"_s.arg(index)));
    EXPECT_EQ(repairAgain().mended, 1);

    flipByte(kitchen, u"IHist"_s, kindOfPage);
    EXPECT_TRUE(has(check().join(u'\n'), u"restore the last backup. The last one that is known was made on"_s));
    EXPECT_EQ(repairAgain().mended, 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"before-%1.sqlite"_s.arg(repairs))));
}

} // namespace

ON_BOTH_STORES(CareTest);
