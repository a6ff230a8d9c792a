// The sample books are copied from a folder onto a server and back, and are the same row by row afterwards. Whoever copies
// or moves them is killed at any step, while others write; what is there of the copy opens as nothing, the books are as they
// were, and the same again comes to its end.

#include "base/settingsstore.h"
#include "care/bookcopy.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "tests/support/chance.h"
#include "tests/support/dataplace.h"
#include "tests/support/failures.h"
#include "tests/support/otheruser.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

#include <csignal>
#include <cstdio>

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
        try {
            const TDataModuleTallymere data(settings, prompts, placeOf(store));
            return true;
        } catch (const Engine::EngineError &error) {
            EXPECT_EQ(error.code(), Engine::ErrorCode::CannotOpen) << error.what();
            return false;
        }
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

TEST_F(CopyTest, BooksComeBackAsTheyWent)
{
    const int kills = timesByHand(3);
    TestStore sample(Store::Local);
    fillSample(sample);
    TestStore server(Store::Remote);
    copyKilled(sample, server, u"copy"_s, kills);
    EXPECT_GT(contents(server.database()).size(), 1'000);
    TestStore back(Store::Local);
    copyKilled(server, back, u"move"_s, kills);
    takeUpAgain(server.database(), u"maria"_s);
    EXPECT_TRUE(opens(server));
    std::printf("%d killed, %d came to their end first\n", killed, survived);
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"copy"_s, copyAndDie}}); }
