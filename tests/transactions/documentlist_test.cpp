#include "transactions/documents/documentlist.h"

#include "tests/support/kitchen.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/documentsearch.h"
#include "transactions/kinds/usagedeletion.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;

namespace {

struct List : KitchenTest
{
    List() { list.open(); }

    int lines() { return static_cast<int>(kitchen.number(u"SELECT count(*) FROM IRecDet"_s)); }

    DocumentList list{kitchen.database(), DocumentKinds::receipt()};
};
ON_BOTH_STORES(List);

TEST_P(List, DeletesAReceiptWithItsLinesAfterAsking)
{
    list.remove(prompts); // of nothing
    EXPECT_NO_THROW(list.find({}));
    kitchen.addReceipt(0, 1, 1, {{1, 1, 1}, {2, 1, 1}}); // the first key of a new database
    kitchen.addReceipt(2, 1, 1, {{1, 1, 1}});
    list.table().refresh();
    ASSERT_TRUE(list.moveTo(0));
    prompts.ok = false;
    EXPECT_THROW(list.remove(prompts), SilentAbort);
    EXPECT_EQ(lines(), 3);

    prompts.ok = true;
    list.remove(prompts);

    EXPECT_EQ(kitchen.found(u"SELECT ReceiptID FROM IReceipt"_s), u"2");
    EXPECT_EQ(lines(), 1);
    EXPECT_EQ(list.currentKey(), 2);
}

// By somebody who does not ask our locks, after the look at the document.
TEST_P(List, TellsDeletedFromPostedInTheLastMoment)
{
    for (int id = 1; id <= 2; ++id)
        kitchen.addReceipt(id, 1, 1, {{1, 1, 1}});
    list.table().setFilter(DocumentKinds::receipt().list.filter.notPosted);
    list.table().setFiltered(true);
    list.table().refresh();
    QString sql;
    const QObject scope; // the list outlives the test
    QObject::connect(&list.table(), &Engine::DataSet::stateChanged, &scope, [&] {
        if (list.table().isEditing())
            kitchen.execute(std::exchange(sql, u"SELECT 1"_s));
    });
    ASSERT_TRUE(list.moveTo(1));
    sql = u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 1"_s;
    EXPECT_EQ(refusalOf([&] { list.remove(prompts); }),
              u"Unable to delete receipt '1001'...\nIt has already been posted -> ");
    EXPECT_EQ(lines(), 2);
    ASSERT_TRUE(list.moveTo(2));
    sql = u"DELETE FROM IReceipt WHERE ReceiptID = 2"_s;
    EXPECT_EQ(errorOf([&] { list.remove(prompts); }), ErrorCode::RecordGone);
}

// Usage 1 to 3 of 14 March 2026, of which 3 is posted, and 4 of the day after; a line each.
struct UsageList : KitchenTest
{
    UsageList()
    {
        kitchen.session().clock = [] { return QDateTime(QDate(2026, 3, 20), QTime(17, 30)); };
        kitchen.makeHost();
        kitchen.execute(u"INSERT INTO IUsage (UsageID, UsageNo, InventoryDate, Posted) VALUES "
                        "(1, '11', '2026-03-14', false), (2, '12', '2026-03-14', false), "
                        "(3, '13', '2026-03-14', true), (4, '14', '2026-03-15', false);"
                        "INSERT INTO IUsageDet (UsageID, Seq) VALUES (1, 1), (2, 1), (3, 1), (4, 1)"_s);
    }
    bool removeOf(int day)
    {
        return UsageDeletion(kitchen.database(), QDate(2026, 3, day)).run(prompts, u"anna"_s);
    }
    QStringList left()
    {
        return kitchen.rows(u"SELECT U.UsageID FROM IUsage U INNER JOIN IUsageDet L ON U.UsageID = L.UsageID "
                            "ORDER BY 1"_s);
    }
    QStringList notes() { return kitchen.rows(uR"(SELECT Tran_Date, Event_Date, Event, "user" FROM History)"_s); }
};
ON_BOTH_STORES(UsageList);

TEST_P(UsageList, DeletesWhatIsUnpostedOfADateAndLeavesANote)
{
    EXPECT_FALSE(removeOf(16));
    prompts.ok = false;
    EXPECT_FALSE(removeOf(14));
    EXPECT_EQ(notes(), QStringList());
    prompts.ok = true;
    EXPECT_TRUE(removeOf(14));
    EXPECT_FALSE(removeOf(14)); // what is left is posted

    const QString question = u"Confirm: Delete the 2 usage(s) with an inventory date of 03/14/2026?\n"
                             "This action can't be reversed!"_s;
    const QString none = u"inform: There were no unposted usages with an inventory date of 03/%1/2026"_s;
    EXPECT_EQ(prompts.said, (QStringList{none.arg(16), question, question, none.arg(14)}));
    EXPECT_EQ(left(), (QStringList{u"3"_s, u"4"_s}));
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IUsageDet"_s), 2);
    EXPECT_EQ(
        notes(),
        QStringList(u"2026-03-20 17:30:00|2026-03-14|Unposted usages with date of 03/14/2026 deleted.|anna"_s));
}

TEST_P(UsageList, DeletesNothingOfADateWhileOneIsEdited)
{
    Engine::Table own(kitchen.database(), u"IUsage"_s);
    own.open();
    own.findKey({2});
    own.edit();
    EXPECT_EQ(refusalOf([&] { removeOf(14); }),
              u"A usage record with an inventory date of 03/14/2026 is being edited. Please close its screen. -> ");
    own.cancel();
    TheirTable theirs(kitchen, u"IUsage"_s);
    theirs.findKey({4}); // of another date
    theirs.edit();
    EXPECT_EQ(errorOf([&] { removeOf(14); }), ErrorCode::TableLocked);
    EXPECT_EQ(prompts.said, QStringList());
    EXPECT_EQ(left().size(), 4);
    theirs.cancel();
    EXPECT_TRUE(removeOf(14));
    EXPECT_TRUE(theirs.database().connection().locks().tryLockTable(u"IUsage"_s));
}

TEST_P(UsageList, RefusesToDeleteAPostedOneBeforeAndAfterAsking)
{
    DocumentList list(kitchen.database(), DocumentKinds::usage());
    list.open();
    ASSERT_TRUE(list.moveTo(3));
    EXPECT_EQ(refusalOf([&] { list.remove(prompts); }),
              u"A usage record that has been Posted \ncan't be deleted! -> ");
    ASSERT_TRUE(list.moveTo(1));
    EXPECT_FALSE(list.table().boolean(u"Posted"));
    kitchen.execute(u"UPDATE IUsage SET Posted = true"_s); // by another user, unseen so far
    EXPECT_EQ(refusalOf([&] { list.remove(prompts); }),
              u"Unable to delete usage 11....\nIt has been posted and therefore can't be deleted. -> ");
}

struct DocumentSearchTest : KitchenTest
{
    QString found(const DocumentKind &kind, const QString &number, int most = 9)
    {
        QStringList texts;
        for (const FoundDocument &one : documentsByNumber(kitchen.database(), kind, number, most)) {
            texts << u"%1=%2 %3 %4"_s.arg(QString::number(one.key), one.number, one.date.toString(Qt::ISODate),
                                          one.rank == TextMatch::Rank::Number ? u"exact"_s : u"begins"_s);
        }
        return texts.join(u", "_s);
    }
};
ON_BOTH_STORES(DocumentSearchTest);

TEST_P(DocumentSearchTest, FindsTheNumberItselfBeforeThoseThatBeginWithIt)
{
    for (const int id : {1, 2, 9'001, 9'002})
        kitchen.addReceipt(id, 1, 1, {});
    const DocumentKind &receipt = DocumentKinds::receipt();
    EXPECT_EQ(found(receipt, u"1001"_s), u"1=1001 2026-03-14 exact"_s);
    EXPECT_EQ(found(receipt, u"100"_s, 3),
              u"9001=10001 2026-03-14 begins, 9002=10002 2026-03-14 begins, 1=1001 2026-03-14 begins"_s)
        << "by the text, as lists sort numbers";
    EXPECT_EQ(found(receipt, u"001"_s), QString());
    EXPECT_EQ(found(receipt, u"%"_s), QString());
}

// Adjustments have no number but their key.
TEST_P(DocumentSearchTest, FindsByTheKeyWhereThatIsTheNumber)
{
    kitchen.execute(u"INSERT INTO IAdjust (AdjustmentID, AdjDate, AdjDescription, Posted) VALUES "
                    "(7, '2026-03-01', 'Spoilt', true), (70, NULL, NULL, NULL), (17, NULL, NULL, NULL), "
                    "(2147483647, NULL, NULL, NULL)"_s);
    const DocumentKind &adjustment = DocumentKinds::adjustment();
    EXPECT_EQ(found(adjustment, u"7"_s), u"7=7 2026-03-01 exact, 70=70  begins"_s);
    EXPECT_EQ(found(adjustment, u"21"_s), u"2147483647=2147483647  begins"_s);
    for (const QString &number : {u"07"_s, u"7.0"_s, u"99999999999999999999"_s, u"4294967303"_s, u"x"_s, QString()})
        EXPECT_EQ(found(adjustment, number), QString()) << qPrintable(number);

    const std::optional<FoundDocument> spoilt = documentOfKey(kitchen.database(), adjustment, 7);
    ASSERT_TRUE(spoilt);
    EXPECT_TRUE(spoilt->posted && spoilt->description == u"Spoilt"_s);
    EXPECT_FALSE(documentOfKey(kitchen.database(), adjustment, 8));
}

} // namespace
