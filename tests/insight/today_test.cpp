#include "data/lastbackup.h"
#include "insight/today.h"
#include "tests/support/documents.h"
#include "transactions/books/lastsaved.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct TodayTest : DocumentTest
{
    TodayFigure figure(const QString &title)
    {
        for (const TodayLine &line : todayLines()) {
            if (line.title == title)
                return line.ask(source)();
        }
        ADD_FAILURE() << "no line " << qPrintable(title);
        return {};
    }
    void save(const DocumentKind &kind, int id, const QString &user)
    {
        addDocument(kitchen, kind, id, 1, {{1, u"2"_s}});
        kitchen.database().session().applicationUser = user;
        if (!user.isEmpty())
            rememberSaved(kitchen.database(), kind.posting.transType, id);
    }

    void begin(const QString &user, int location)
    {
        CountDraft draft;
        draft.counts.insert(1, 3);
        CountDrafts(CountDrafts::nameOf(kitchen.database()), user, drafts.path()).save(location, draft);
    }

    QTemporaryDir drafts;
    TodaySource source{kitchen.database(), u"maria"_s, drafts.path()};
};
ON_BOTH_STORES(TodayTest);

} // namespace

TEST_P(TodayTest, CountsWhatAPostingWouldTakeByWhoHasSavedIt)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        EXPECT_FALSE(figure(kind->posting.waiting).waits);
        for (int id = 1; id <= 4; ++id)
            save(*kind, id, id == 4 ? QString() : id == 3 ? u"anna"_s : u"maria"_s);
        const TodayFigure waiting = figure(kind->posting.waiting);
        EXPECT_EQ(waiting.text, u"4"_s);
        EXPECT_TRUE(waiting.waits);
        EXPECT_EQ(waiting.detail, u"Last saved by: anna 1, maria 2, not known 1"_s);

        DocumentPosting posting(kitchen.database(), *kind);
        EXPECT_EQ(posting.count(), 4);
        ASSERT_TRUE(posting.run(prompts, progress));
        EXPECT_EQ(figure(kind->posting.waiting).text, u"0"_s);
    }
}

TEST_P(TodayTest, TellsOfBalancesCountsAndThePeriod)
{
    kitchen.setStock(1, 1, 0, 1);
    kitchen.setStock(2, 1, -1, 1);
    kitchen.setStock(1, 2, -0.5, 1);
    EXPECT_EQ(figure(u"Below zero"_s).text, u"2"_s);
    EXPECT_EQ(figure(u"Below zero"_s).detail, u"Freezer 1, Office 1"_s);

    begin(u"anna"_s, 1);
    EXPECT_EQ(figure(u"Counts begun"_s).text, u"0"_s) << "of somebody else";
    begin(u"maria"_s, 2);
    EXPECT_EQ(figure(u"Counts begun"_s).text, u"1"_s);
    EXPECT_EQ(figure(u"Counts begun"_s).detail, u"Freezer"_s);

    EXPECT_EQ(figure(u"Period"_s).text, u"3/2026"_s);
    EXPECT_EQ(figure(u"Period"_s).detail, QString());
    kitchen.execute(u"UPDATE Company SET FiscalYear = 2027, DefaultPeriodPP = 0"_s);
    kitchen.database().session().clock = [] { return QDateTime(QDate(2031, 8, 2), QTime(9, 0)); };
    EXPECT_EQ(figure(u"Period"_s).text, u"8/2026"_s) << "what is not set is that of the date";
    EXPECT_TRUE(figure(u"Period"_s).detail.contains(u"prior to current fiscal year"_s));
}

TEST_P(TodayTest, TellsWhenTheLastBackupWasMade)
{
    const auto setDay = [&](int day) {
        kitchen.database().session().clock = [day] { return QDateTime(QDate(2026, 3, day), QTime(17, 5)); };
    };
    EXPECT_EQ(figure(u"Backup"_s).text, u"never"_s);
    for (const int day : {2, 12}) {
        setDay(day);
        kitchen.database().session().applicationUser = u"anna"_s;
        rememberBackup(kitchen.database());
        EXPECT_EQ(figure(u"Backup"_s).text, u"today"_s);
    }
    setDay(13);
    EXPECT_EQ(figure(u"Backup"_s).text, u"yesterday"_s);
    setDay(14);
    EXPECT_EQ(figure(u"Backup"_s).text, u"12 Mar 26"_s);
    EXPECT_EQ(figure(u"Backup"_s).detail, u"12 Mar 26, 17:05, by anna"_s);
}
