// Six users without windows and two with them work on a cluster whose primary is killed, stopped, cut off and made a standby,
// round after round. Whatever was answered is there, nothing is there twice, and everybody goes on without being started
// anew. TALLYMERE_TEST_CLUSTER is the folder of the cluster (scripts/cluster), which scripts/endurance brings up.

#include "tests/cli/clirunner.h"
#include "tests/endurance/desk.h"
#include "tests/endurance/people.h"
#include "tests/support/chance.h"
#include "tests/support/files.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/entry/documententry.h"
#include "transactions/posting/documentposting.h"

#include <QThread>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int enterers = 4;
constexpr int posters = 2;
constexpr int sitters = 2;
constexpr int longest = 180; // seconds until everybody must have had an answer again

QString cluster() { return qEnvironmentVariable("TALLYMERE_TEST_CLUSTER"); }

qint64 now() { return QDateTime::currentMSecsSinceEpoch(); }
void sayAnswered(const QString &word, qint64 begun) { say({u"answered"_s, word, QString::number(begun)}); }

// Does a step until it is answered; what a user does who is told that the server is gone.
void insist(const std::function<void()> &step)
{
    for (;;) {
        try {
            return step();
        } catch (const Engine::EngineError &error) {
            say({u"told"_s, QString::number(static_cast<int>(error.code())), error.text()});
        }
        QThread::msleep(200);
    }
}

// Receipts of two lines each that bear a word of their own. Who is told that it is not known whether it was saved looks.
void enter(Engine::Database &database, const QStringList &arguments)
{
    database.session().applicationUser = u"user"_s + arguments.value(0);
    SpokenPrompts prompts;
    const auto first = [&](const QString &key, const QString &table) {
        return rowsOf(database, u"SELECT min(%1) FROM %2"_s.arg(key, table)).first().toInt();
    };
    const int item = first(u"ItemID"_s, u"Item"_s);
    const int vendor = first(u"VendorID"_s, u"Vendor"_s);
    const int location = first(u"WarehouseID"_s, u"Warehse"_s);
    for (int number = 1;; ++number) {
        const QString word = u"u%1-%2"_s.arg(arguments.value(0)).arg(number);
        const qint64 begun = now();
        std::unique_ptr<DocumentEntry> entry;
        insist([&] {
            entry = DocumentKinds::receipt().entry.make(database, prompts);
            entry->open();
            entry->newDocument();
            entry->header().set(u"WarehouseID"_s, location);
            entry->header().set(u"VendorID"_s, vendor);
            entry->header().set(u"PurchaseOrderNo"_s, word);
        });
        for (int line = 0; line < 2; ++line) {
            insist([&] {
                if (!entry->lines().isEditing())
                    entry->newLine();
                entry->lines().set(u"QtyReceived"_s, 2);
                entry->chooseItem(item);
                entry->lines().set(u"UnitCost"_s, 1);
                entry->lines().post();
            });
        }
        insist([&] {
            const QString there = u"SELECT ReceiptID FROM IReceipt WHERE PurchaseOrderNo = '%1'"_s.arg(word);
            if (entry->header().isEditing() && rowsOf(database, there).isEmpty())
                entry->save();
        });
        sayAnswered(word, begun);
    }
}

void post(Engine::Database &database, const QStringList &)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    for (;;) {
        const qint64 begun = now();
        insist([&] {
            DocumentPosting posting(database, DocumentKinds::receipt());
            posting.run(prompts, progress);
            sayAnswered(posting.posted() > 0 ? u"posted"_s : u"nothing"_s, begun);
        });
        QThread::msleep(100);
    }
}

// The same in a window, by keys. Its user enters anew what the window does not keep.
void sit(Engine::Database &books, const QStringList &arguments)
{
    Desk desk({.server = books.session().remoteAddress,
               .serverDatabase = books.remoteName,
               .currentUser = u"sitter"_s + arguments.value(0)}); // another one would take up what he has begun
    for (int number = 1;; ++number) {
        const QString word = u"w%1-%2"_s.arg(arguments.value(0)).arg(number);
        const qint64 begun = now();
        for (bool isEntered = false; !isEntered;) {
            insist([&] {
                try {
                    desk.prompts.answer = Answer::No;
                    desk.enterReceipt("V1", "2", word.toUtf8());
                    isEntered = true;
                } catch (const Refusal &refusal) {
                    say({u"again"_s, word, QString::fromUtf8(refusal.what())});
                }
            });
        }
        sayAnswered(word, begun);
    }
}

// What a fault does to the node that is the primary, and how it is mended.
struct Fault
{
    const char *name;
    const char *doing; // %1 the processes of its server, %2 of what looks after that
    const char *mending;
};
const Fault faults[] = {
    {"server killed", "kill -9 %1", ""},
    {"node killed", "kill -9 %2 %1", "start"},
    {"server stopped", "kill -STOP %1", "kill -CONT %1; true"},
    {"cut off", "kill -STOP %2 %1", "kill -CONT %2 %1; true"},
    {"switched over", "switch", ""},
};

QString shell(const QString &command)
{
    QProcess process;
    process.start(u"sh"_s, {u"-c"_s, command});
    process.waitForFinished(-1);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

struct FailoverTest : testing::Test
{
    struct Person
    {
        QString task;
        std::unique_ptr<QProcess> process;
        qint64 usable = -1; // milliseconds after the fault, with something begun since then; none yet
    };

    static QString script(const QString &action, const QString &node = {})
    {
        return shell(QStringLiteral(CLUSTER_SCRIPT) + u' ' + action + u' ' + cluster() + u' ' + node.mid(1));
    }
    static QString leader()
    {
        return shell(u"patronictl -c %1/n1.yml list -f tsv 2>/dev/null | awk -F'\\t' '$4 == \"Leader\" {print $2} "
                     "$3 == \"Leader\" {print $1}' | grep -o 'n[123]' | head -1"_s.arg(cluster()));
    }
    static QString serverOf(const QString &node)
    {
        return shell(u"p=$(head -1 %1/%2-data/postmaster.pid); echo $p $(pgrep -P $p | tr '\\n' ' ')"_s.arg(
            cluster(), node));
    }
    void start(const QString &task, int number)
    {
        Person person{task, std::make_unique<QProcess>()};
        person.process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        person.process->start(QCoreApplication::applicationFilePath(),
                              {u"--other-user"_s, u"remote"_s, u"corvane"_s, task, QString::number(number)});
        people.push_back(std::move(person));
    }
    void hear(Person &person, const QString &line)
    {
        const QString word = line.section(u' ', 1, 1);
        if (!line.startsWith("answered"_L1)) {
            if (!line.contains("is locked by"_L1))
                ++messages;
            if (person.task == "sit"_L1 || !line.startsWith("told"_L1))
                m_told << QString::number(now() - faultAt) + u' ' + person.task + u": "_s + line.left(300);
            return;
        }
        if (person.task != "post"_L1)
            answered << word;
        if (person.usable < 0 && word != "nothing"_L1 && line.section(u' ', 2).toLongLong() >= faultAt)
            person.usable = now() - faultAt;
    }
    // Until everybody has had an answer since the clock began.
    bool listen()
    {
        const auto isBack = [](const Person &person) { return person.usable >= 0; };
        while (!std::all_of(people.begin(), people.end(), isBack)) {
            for (Person &person : people) {
                person.process->waitForReadyRead(20);
                while (person.process->canReadLine())
                    hear(person, QString::fromUtf8(person.process->readLine()).trimmed());
                if (person.process->state() == QProcess::NotRunning) {
                    std::printf("%s is gone\n", qPrintable(person.task));
                    return false;
                }
            }
            if (now() - faultAt > longest * 1000)
                return false;
        }
        return true;
    }
    void startClock()
    {
        faultAt = now();
        messages = 0;
        for (Person &person : people)
            person.usable = -1;
    }
    bool begin()
    {
        startClock();
        return listen();
    }
    void verify()
    {
        const auto other = cli->anotherUser();
        QHash<QString, int> there;
        for (const QString &row :
             rowsOf(other->database,
                    u"SELECT PurchaseOrderNo, count(*), count(DISTINCT H.ReceiptID) FROM IReceipt H "
                    "JOIN IRecDet D ON D.ReceiptID = H.ReceiptID GROUP BY PurchaseOrderNo"_s)) {
            EXPECT_TRUE(row.endsWith("|2|1"_L1)) << "not once: " << qPrintable(row);
            there.insert(row.section(u'|', 0, 0), 1);
        }
        for (const QString &word : std::as_const(answered))
            EXPECT_TRUE(there.contains(word)) << "answered and lost: " << qPrintable(word);
        if (HasFailure()) { // with what there is of it
            m_told += rowsOf(other->database,
                             u"SELECT ReceiptID, PurchaseOrderNo, Posted, (SELECT count(*) FROM IRecDet D "
                             "WHERE D.ReceiptID = H.ReceiptID) FROM IReceipt H WHERE PurchaseOrderNo LIKE 'w%' "
                             "OR coalesce(PurchaseOrderNo, '') = '' ORDER BY ReceiptID"_s);
            std::printf("%s\n", qPrintable(m_told.join(u'\n')));
        }
        Findings found;
        EXPECT_TRUE(comesTrue([&] { return !errorOf([&] { found = checked(other->database); }); }));
        EXPECT_EQ(found.bad.join(u'\n').toStdString(), "");
    }

    std::unique_ptr<CliRunner> cli;
    std::vector<Person> people;
    QStringList answered;
    QStringList m_told;
    int messages = 0; // besides that of a lock
    qint64 faultAt = 0;
};

TEST_F(FailoverTest, WhatWasAnsweredIsThereOnceAndEverybodyGoesOn)
{
    if (cluster().isEmpty())
        GTEST_SKIP() << "There is no cluster; scripts/endurance failover brings one up.";
    cli = std::make_unique<CliRunner>(Store::Remote);
    makeSmallCompany(*cli);
    cli->execute(u"UPDATE Item SET Suspended = false WHERE Suspended IS NULL"_s);
    for (const auto &[task, count] : {std::pair(u"enter"_s, enterers), {u"post"_s, posters}, {u"sit"_s, sitters}})
        for (int number = 1; number <= count; ++number)
            start(task, number);
    ASSERT_TRUE(begin());
    const int rounds = timesByHand(static_cast<int>(std::size(faults)));
    std::printf("seconds until usable\n%-16s %s\n", "fault",
                "each of four who enter, two who post, two in windows; messages to all of them; new primary");
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        const Fault &fault = faults[static_cast<std::size_t>(round) % std::size(faults)];
        const QString node = leader();
        const QString server = serverOf(node), keepers = script(u"processes"_s, node).replace(u'\n', u' ');
        SCOPED_TRACE(fault.name + (" of " + node.toStdString()));
        const auto filled = [&](const char *text) {
            return QString::fromLatin1(text).replace("%1"_L1, server).replace("%2"_L1, keepers);
        };
        QThread::msleep(700);
        const bool isSwitch = fault.doing == std::string("switch");
        startClock();
        shell(isSwitch ? u"patronictl -c %1/n1.yml switchover --master %2 --force >/dev/null"_s.arg(cluster(), node)
                       : filled(fault.doing));
        EXPECT_TRUE(listen());
        std::printf("%-16s", fault.name);
        for (const Person &person : people)
            std::printf(" %5.1f", double(person.usable) / 1000);
        std::printf("   %4d   %s\n", messages, qPrintable(leader()));
        std::fflush(stdout);
        if (fault.mending == std::string("start"))
            script(u"start"_s);
        else
            shell(filled(fault.mending));
        QThread::sleep(4); // until the cluster has noticed
        EXPECT_TRUE(has(script(u"ready"_s), u"is ready"_s));
        ASSERT_TRUE(begin());
        verify();
    }
    for (Person &person : people)
        person.process->kill();
    for (Person &person : people)
        person.process->waitForFinished();
    verify();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return runTests(argc, argv, {{u"enter"_s, enter}, {u"post"_s, post}, {u"sit"_s, sit}});
}
