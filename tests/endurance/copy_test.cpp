// Books are copied from a folder onto a server and back, the sample ones and random ones, and are the same row by row
// afterwards. Whoever copies or moves them is killed at any step, while others write; what is there of the copy opens as
// nothing, the books are as they were, and the same again comes to its end.

#include "base/settingsstore.h"
#include "care/bookcopy.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "tests/support/chance.h"
#include "tests/support/dataplace.h"
#include "tests/support/documents.h"
#include "tests/support/otheruser.h"

#include <cmath>
#include <csignal>
#include <cstdio>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

void ignoreLine(const QString &) { }

Afterwards afterwardsOf(const QString &word) { return word == "move"_L1 ? Afterwards::Moved : Afterwards::GoOn; }

// The task of one who is killed: where to, what becomes of the books, and the step that he does not survive. What he is
// told counts as a step too, so that there is one between any two changes.
void copyAndDie(Engine::Database &books, const QStringList &arguments)
{
    TestUser target(arguments.mid(0, 2));
    CountedProgress progress(arguments.value(3).toInt(), [] { std::raise(SIGKILL); });
    progress.start(0); // what is told before it counts as well
    copyBooks(books, target.database, afterwardsOf(arguments.value(2)), progress,
              [&progress](const QString &) { progress.step(); });
    std::printf("done\n");
}

// Everything that the tables hold and how their indexes are, in the order of their rows' text.
QStringList contents(Engine::Database &database)
{
    const QStringList tables = tablesOfBooks(database);
    QStringList indexes;
    for (const QString &table : tables) {
        const Engine::TableLayout layout = database.connection().describe(table).value();
        for (const Engine::IndexDef &index : layout.indexes)
            indexes << u"%1.%2(%3)%4"_s.arg(table, index.name, index.fields).arg(index.options.toInt());
    }
    indexes.sort();
    return indexes + contentsOf(database, tables);
}

struct CopyTest : testing::Test
{
    CopyTest() { qputenv("TALLYMERE_TEST_SEED", QByteArray::number(seed)); }

    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    // Whatever a table may hold, in every table that there is.
    void makeRandom(Kitchen &kitchen)
    {
        kitchen.makeHost();
        for (const Engine::TableLayout *layout : Layouts::applied())
            kitchen.database().createOrUpdateTable(*layout);
        SpokenPrompts prompts;
        CountedProgress progress;
        for (int id = 1; id <= 30; ++id)
            addRandomDocument(kitchen, *DocumentKinds::all().at(id % DocumentKinds::all().size()), id,
                              1 + below(40), random);
        postAll(kitchen);
        for (const QString &table : tablesOfBooks(kitchen.database()))
            addRandomRows(kitchen.database(), kitchen.database().connection().describe(table).value());
    }

    void addRandomRows(Engine::Database &database, const Engine::TableLayout &layout)
    {
        static const QSet<QString> oneRow{u"Config"_s, u"Company"_s, u"IDataVersion"_s, u"IBackup"_s};
        if (oneRow.contains(layout.name))
            return;
        Engine::Transaction transaction(database.connection());
        const auto insert = database.connection().bulkInsert(layout);
        for (int row = 0; row < 40; ++row) {
            QList<Engine::Value> values;
            for (const Engine::FieldDef &field : layout.fields) {
                const bool isKey = layout.primaryFields().contains(field.name, Qt::CaseInsensitive);
                values << (isKey && Engine::isWholeNumber(field.type) ? Engine::Value(30'000 - row)
                                                                      : randomValue(field, isKey ? row : -1));
            }
            insert->add(values);
        }
        insert->finish();
        transaction.commit();
    }

    // Of a key, one for each row.
    Engine::Value randomValue(const Engine::FieldDef &field, int row)
    {
        static const QStringList texts{
            u""_s,     u"\\N"_s,     u"\\"_s,           u"a\tb"_s,       u"line\r\nline\n"_s,
            u"NULL"_s, u" blank "_s, u"Ünïcödé 日本"_s, u"\"q\", 'r'"_s, u"\U0001F34E"_s};
        if (row < 0 && random() % 4 == 0)
            return {};
        switch (field.type) {
        case Engine::FieldType::Boolean:
            return random() % 2 == 0;
        case Engine::FieldType::Float:
        case Engine::FieldType::Money:
            return std::ldexp(static_cast<double>(random()) - 2e9, below(60) - 40);
        case Engine::FieldType::Date:
            return QDate(1900, 1, 1).addDays(row < 0 ? below(90'000) : row);
        case Engine::FieldType::DateTime:
            return QDateTime(QDate(2026, 1, 1), QTime(0, 0)).addSecs(below(30'000'000));
        case Engine::FieldType::Text:
        case Engine::FieldType::Memo: {
            const QString text = row < 0 ? texts[below(static_cast<int>(texts.size()))] : QString::number(row);
            return field.type == Engine::FieldType::Text ? text.left(field.size) : text;
        }
        default:
            return row < 0 ? below(60'000) - 30'000 : row;
        }
    }

    static void fillSample(TestStore &store)
    {
        MemorySettings settings;
        SpokenPrompts prompts;
        CountedProgress progress;
        DataModuleOptions options = placeOf(store);
        options.prepareHost = [](Engine::Database &database) {
            HostTables::createHostTables(database, u"Kitchen"_s, u"USA"_s);
        };
        TDataModuleTallymere data(settings, prompts, options);
        bringInSampleMasters(data, progress);
        for (const DocumentKind *kind : DocumentKinds::all()) {
            for (const int period : samplePeriods({kind->name}))
                bringInSampleDocuments(data, kind->name, period, progress);
            DocumentPosting(data.databaseTallymere(), *kind).run(prompts, progress);
            bringInOpenDocuments(data, kind->name, progress);
        }
    }

    static int stepsOf(TestStore &from)
    {
        TestStore to(Store::Remote);
        CountedProgress progress;
        copyBooks(from.database(), to.database(), Afterwards::GoOn, progress,
                  [&progress](const QString &) { progress.step(); });
        return progress.steps;
    }

    static bool opens(const TestStore &store)
    {
        MemorySettings settings;
        SpokenPrompts prompts;
        const auto error = errorOf([&] { const TDataModuleTallymere data(settings, prompts, placeOf(store)); });
        EXPECT_TRUE(!error || error == Engine::ErrorCode::CannotOpen);
        return !error;
    }

    // There, killed at so many steps, each time but the last with something written by others; and what is in the end.
    void copyKilled(TestStore &from, TestStore &to, const QString &what, int kills)
    {
        const int steps =
            stepsOf(from) + (what == "move"_L1 ? static_cast<int>(tablesOfBooks(from.database()).size()) : 0);
        bool isDone = false;
        for (int kill = 1; kill <= kills && !isDone; ++kill) {
            const QStringList before = contents(from.database());
            const int step = below(steps);
            SCOPED_TRACE(testing::Message() << what.toStdString() << " killed at step " << step << " of " << steps);
            OtherUser copier(from, QStringList{u"copy"_s} + to.place() + QStringList{what, QString::number(step)});
            isDone = copier.line() == "done"_L1;
            copier.kill();
            const bool hasMoved = bool(movedBooks(from.database()));
            EXPECT_EQ(contents(from.database()), before);
            EXPECT_TRUE(isDone || (!to.connection().tables().isEmpty() && !opens(to)));
            if (!isDone && !hasMoved)
                from.execute(u"UPDATE Item SET UnitPrice = %1 WHERE ItemID = 1; DELETE FROM IBarcode"_s, kill);
            ++(isDone ? survived : killed);
        }
        CountedProgress progress;
        if (!isDone)
            copyBooks(from.database(), to.database(), afterwardsOf(what), progress, ignoreLine);
        EXPECT_EQ(contents(to.database()), contents(from.database()));
        EXPECT_EQ(bool(movedBooks(from.database())), what == "move"_L1);
        EXPECT_TRUE(opens(to));
    }

    const unsigned seed = chanceSeed();
    const testing::ScopedTrace trace{__FILE__, __LINE__, testing::Message() << "TALLYMERE_TEST_SEED=" << seed};
    std::mt19937 random{seed};
    int killed = 0;
    int survived = 0;
};

TEST_F(CopyTest, TheSampleAndRandomBooksComeBackAsTheyWent)
{
    const int kills = timesByHand(2);
    TestStore sample(Store::Local);
    fillSample(sample);
    Kitchen kitchen(Store::Local);
    makeRandom(kitchen);
    for (TestStore *books : {&sample, static_cast<TestStore *>(&kitchen)}) {
        TestStore server(Store::Remote);
        copyKilled(*books, server, u"copy"_s, kills);
        const QStringList there = contents(server.database());
        EXPECT_GT(there.size(), 1'000);
        TestStore back(Store::Local);
        copyKilled(server, back, u"move"_s, kills);
        takeUpAgain(server.database(), u"maria"_s);
        EXPECT_TRUE(opens(server));
    }
    std::printf("%d killed, %d came to their end first\n", killed, survived);
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"copy"_s, copyAndDie}}); }
