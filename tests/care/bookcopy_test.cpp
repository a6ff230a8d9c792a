#include "care/bookcopy.h"

#include "care/tablecopy.h"
#include "tests/support/dataplace.h"
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct BookCopyTest : KitchenTest
{
    BookCopyTest()
    {
        kitchen.makeHost();
        for (const Engine::TableLayout *layout : Layouts::applied())
            kitchen.database().createOrUpdateTable(*layout);
        kitchen.execute(u"UPDATE Vendor SET Notes = 'Ünïcode\\\ttab, ''quoted''\r\nand long' WHERE VendorID = 1; "
                        "UPDATE Vendor SET Notes = '\\N', VendorName = '' WHERE VendorID = 2"_s);
        std::mt19937 random(3);
        addPostedDocuments(kitchen, 6, random);
    }

    static QStringList contents(TestStore &store)
    {
        return contentsOf(store.database(), tablesOfBooks(store.database()));
    }

    void copy(TestStore &to, Afterwards afterwards, Progress &told)
    {
        lines.clear();
        const auto tell = [this](const QString &line) { lines << line; };
        copyBooks(kitchen.database(), to.database(), afterwards, told, tell);
    }
    void copy(TestStore &to, Afterwards afterwards = Afterwards::GoOn) { copy(to, afterwards, progress); }

    // What opening as books, by a window or a command, is refused with.
    QString refusalToOpen(const TestStore &store)
    {
        MemorySettings settings;
        QString text;
        errorOf([&] { const TDataModuleTallymere data(settings, prompts, placeOf(store)); }, &text);
        return text;
    }

    QStringList lines;
};

TEST_P(BookCopyTest, HoldsTheSameInEitherStoreAndNothingIsCopiedOverBooks)
{
    const QStringList before = contents(kitchen);
    for (const Store store : {Store::Local, Store::Remote}) {
        SCOPED_TRACE(storeName(store));
        TestStore other(store);
        copy(other);
        EXPECT_EQ(contents(other), before);
        EXPECT_TRUE(lines.contains(u"Locations: 2 rows"_s)) << lines.join(u'\n').toStdString();
        EXPECT_TRUE(lines.contains(u"Check \"Balances\": nothing is wrong on either side."_s));
        EXPECT_EQ(refusalToOpen(other), QString());
        const qint64 last = other.found(u"SELECT MAX(IHistID) FROM IHist"_s).toLongLong();
        other.execute(u"INSERT INTO IHist (ItemID) VALUES (1)"_s);
        EXPECT_EQ(other.found(u"SELECT MAX(IHistID) FROM IHist"_s).toLongLong(), last + 1);
        EXPECT_TRUE(has(refusalOf([&] { copy(other); }), u"holds books already (Test Kitchen, 4 items, "_s));
    }
    EXPECT_EQ(contents(kitchen), before);
    if (GetParam() == Store::Remote)
        return;
    TestStore other(Store::Local);
    CountedProgress replaced(0, [this] { QFile::remove(kitchen.directory() + "/Corvane.sqlite"_L1); });
    EXPECT_EQ(errorOf([&] { copy(other, Afterwards::GoOn, replaced); }), Engine::ErrorCode::FileReplaced);
    EXPECT_TRUE(has(refusalToOpen(other), u" by maria. "_s));
}

TEST_P(BookCopyTest, BooksThatMoveTakeWhatWasWrittenMeanwhileAndNothingAfterwards)
{
    TestStore other(GetParam() == Store::Local ? Store::Remote : Store::Local);
    const auto anna = kitchen.anotherUser();
    CountedProgress meanwhile;
    bool isFirst = true;
    meanwhile.onStart = [&] { // of the second, the moment is over
        if (!std::exchange(isFirst, false))
            anna->execute(u"UPDATE Item SET UnitPrice = 77 WHERE ItemID = 2"_s);
    };
    copy(other, Afterwards::Moved, meanwhile);
    EXPECT_EQ(other.found(u"SELECT UnitPrice FROM Item WHERE ItemID = 2"_s), u"77"_s);
    const QStringList moved = contents(kitchen);
    EXPECT_EQ(contents(other), moved);
    EXPECT_EQ(refusalToOpen(other), QString());

    const QString place = other.database().connection().location();
    for (const QString &write : {u"UPDATE Item SET UnitPrice = 1"_s, u"DELETE FROM IHist"_s,
                                 u"INSERT INTO Vendor (VendorID) VALUES (99)"_s}) // of one who had it open before
        EXPECT_TRUE(fails([&] { anna->execute(write); }, Engine::ErrorCode::MovedAway, place));
    EXPECT_EQ(refusalToOpen(kitchen), QString());
    EXPECT_TRUE(prompts.told().contains(u"These books have moved to %1"_s.arg(place)));
    EXPECT_EQ(contents(kitchen), moved);

    takeUpAgain(kitchen.database(), u"maria"_s);
    EXPECT_EQ(kitchen.found(u"SELECT \"user\" FROM History WHERE Event LIKE 'Taken up again%'"_s), u"maria"_s);
    anna->execute(u"UPDATE Item SET UnitPrice = 1"_s);
    EXPECT_EQ(refusalToOpen(kitchen), QString());
    EXPECT_EQ(prompts.told(), QString());
    EXPECT_NE(refusalOf([&] { takeUpAgain(kitchen.database(), u"maria"_s); }), QString());
}

TEST_P(BookCopyTest, AMoveThatWasCutOffAtItsLastStepComesToItsEnd)
{
    TestStore other(Store::Remote);
    copy(other, Afterwards::Moved);
    beginCopy(other.database(), kitchen.database());
    EXPECT_FALSE(refusalToOpen(other).isEmpty());
    Kitchen another(GetParam());
    another.makeHost();
    const auto goOn = [&] {
        copyBooks(another.database(), other.database(), Afterwards::GoOn, progress, [](auto &) {});
    };
    EXPECT_TRUE(has(refusalOf(goOn), u"Only the same can go on with it"_s));
    copy(other, Afterwards::Moved);
    EXPECT_EQ(refusalToOpen(other), QString());
    TestStore third(Store::Local);
    EXPECT_TRUE(has(refusalOf([&] { copy(third, Afterwards::Moved); }), u"These books have moved"_s));
}

TEST_P(BookCopyTest, DoesNotMoveWhileSomebodyHasADocumentOpen)
{
    TestStore other(Store::Local);
    {
        const TheirTable receipts(kitchen, u"IReceipt"_s);
        EXPECT_THROW(copy(other, Afterwards::Moved), Engine::EngineError);
    }
    EXPECT_FALSE(movedBooks(kitchen.database()));
    EXPECT_FALSE(refusalToOpen(other).isEmpty());
    copy(other, Afterwards::Moved);
    EXPECT_TRUE(movedBooks(kitchen.database()));
}

ON_BOTH_STORES(BookCopyTest);

} // namespace
