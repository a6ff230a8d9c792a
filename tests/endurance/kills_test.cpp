// Somebody works, in windows or without, or a command runs, and is killed at a moment that chance gives; on the server its own processes are killed
// as well, and the whole of it stopped at once. Each time the books open, are sound, hold what had been answered, and are
// worked on. The server is one of its own.

#include "tests/cli/clirunner.h"
#include "tests/endurance/desk.h"
#include "tests/endurance/people.h"
#include "tests/support/chance.h"
#include "tests/support/files.h"
#include "transactions/documents/begundocument.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

#include <csignal>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class OwnServer final : public testing::Environment
{
public:
    void SetUp() override { run({u"start"_s}); }
    void TearDown() override { run({u"stop"_s}); }

    // As pulling the plug of the server's program; it comes again on the same port.
    static void stopAtOnce()
    {
        const QString home = QString::fromUtf8(contentOf(s_folder.filePath(u"home"_s)).trimmed());
        const QString data = (home.isEmpty() ? s_folder.path() : home) + "/data"_L1;
        const QString restart =
            u"cd / && $(pg_config --bindir)/pg_ctl restart -D '%1' -m immediate -w -l '%1/../log'"_s;
        EXPECT_EQ(QProcess::execute(u"sh"_s, as(home, restart.arg(data))), 0);
    }
    static QStringList as(const QString &home, const QString &command)
    {
        const QString own = u"runuser -u postgres -- sh -c \"%1\""_s.arg(command);
        return {u"-c"_s, (home.isEmpty() ? command : own) + " >/dev/null"_L1};
    }

private:
    static void run(const QStringList &words)
    {
        ASSERT_EQ(QProcess::execute(QStringLiteral(POSTGRES_SCRIPT), words + QStringList{s_folder.path()}), 0);
        qputenv("TALLYMERE_TEST_POSTGRES", s_folder.path().toLocal8Bit());
    }

    static inline QTemporaryDir s_folder;
};

// Who works in windows: number, and a folder for what he keeps.
class Sitter
{
public:
    Sitter(const DataModuleOptions &options, const QStringList &arguments)
        : m_random(chanceSeed() + arguments.value(0).toUInt())
        , m_desk(options)
    {
        m_desk.folder = arguments.value(1);
        qputenv("XDG_DATA_HOME", m_desk.folder.toUtf8());
        tellSaved(false);
        say({u"sits"_s});
    }

    void step()
    {
        static const std::pair<const char *, void (Sitter::*)()> doings[] = {
            {"enter", &Sitter::enter}, {"enter", &Sitter::enter}, {"enter", &Sitter::enter},
            {"post", &Sitter::post},   {"count", &Sitter::count}, {"repair", &Sitter::repair},
            {"copies", &Sitter::copy}};
        const auto &[name, doing] = doings[m_random() % std::size(doings)];
        const QString word = u"window:"_s + QString::fromLatin1(name);
        m_mayBeRefused = false;
        m_desk.prompts.answer = std::array{Answer::Yes, Answer::No, Answer::Cancel}[m_random() % 3];
        try {
            (this->*doing)();
            tellSaved(true);
            say({u"did"_s, word});
        } catch (const Refusal &refusal) {
            say({m_mayBeRefused ? u"refused"_s : u"FAILED"_s, word, QString::fromUtf8(refusal.what())});
        }
        ScreenTest::settle();
    }

private:
    Engine::Database &books() { return m_desk.data.databaseTallymere(); }
    void enter()
    {
        const bool isLeft = BegunDocument::countLeft(books(), DocumentKinds::receipt()) > 0;
        m_mayBeRefused = isLeft && m_desk.prompts.answer == Answer::Yes; // it may lack what was not typed yet
        const int before = m_desk.offered;
        m_desk.enterReceipt("V1", QByteArray::number(1 + m_random() % 9));
        if (isLeft && m_desk.offered == before)
            say({u"FAILED"_s, u"what was begun is not offered"_s});
        else if (isLeft)
            say({u"did"_s, u"window:offer"_s});
    }
    void post()
    {
        const DocumentKind &kind = *DocumentKinds::all()[m_random() % 2];
        m_mayBeRefused = DocumentPosting(books(), kind).keys().empty();
        m_desk.post(kind);
    }
    void count()
    {
        m_mayBeRefused = true; // where something is not posted, or there is nothing
        m_desk.count("A1<Return>" + QByteArray::number(m_random() % 9) + "<Return>");
    }
    void repair()
    {
        if (rowsOf(books(), u"SELECT 1 FROM IReceipt WHERE ReceiptID > 0"_s).isEmpty())
            return;
        say({u"damaging"_s});
        books().connection().execute(u"UPDATE ItemCtl SET NextInvReceiptID = 1"_s);
        m_desk.checkAndRepair();
        clear();
        say({u"mended"_s});
    }
    void copy()
    {
        m_desk.backUpAndRestore();
        clear();
    }
    void clear()
    {
        for (const QFileInfo &file : QDir(m_desk.folder).entryInfoList({u"b*.sqlite"_s}))
            QFile::remove(file.filePath());
    }
    void tellSaved(bool isNew)
    {
        for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()}) {
            const QStringList lines = rowsOf(
                books(),
                u"SELECT H.%1, WarehouseID, ItemID, %2 FROM %3 H JOIN %4 L ON L.%1 = H.%1 WHERE H.%1 > %5"_s.arg(
                    kind->keyField, kind->entry.lineColumns.constFirst().field, kind->headerTable, kind->lineTable,
                    QString::number(m_told.value(kind->name, -1))));
            for (const QString &line : lines) {
                if (isNew)
                    say(QStringList{u"line"_s, kind->name} + line.split(u'|'));
                m_told[kind->name] = std::max(m_told.value(kind->name, -1), line.section(u'|', 0, 0).toInt());
            }
        }
    }

    std::mt19937 m_random;
    Desk m_desk;
    QHash<QString, int> m_told; // keys up to which documents have been told
    bool m_mayBeRefused = false;
};

void sit(Engine::Database &books, const QStringList &arguments)
{
    const bool isLocal = books.session().type == Engine::SessionType::Local;
    Sitter sitter(isLocal ? DataModuleOptions{.dataFolder = books.directory, .currentUser = u"anna"_s}
                          : DataModuleOptions{.server = books.session().remoteAddress,
                                              .serverDatabase = books.remoteName,
                                              .currentUser = u"anna"_s},
                  arguments);
    for (;;)
        sitter.step();
}

struct KillsTest : testing::TestWithParam<Store>
{
    KillsTest()
    {
        makeSmallCompany(cli);
        EXPECT_EQ(cli.import(u"locations"_s, "WarehouseName\nCold Room\n").status, 0);
        EXPECT_EQ(cli.import(u"types"_s, "TypeName,Inventory\nLunch,true\n").status, 0); // of the host's items
        cli.execute(u"UPDATE Item SET Suspended = false WHERE Suspended IS NULL"_s);
    }
    unsigned below(std::size_t limit) { return static_cast<unsigned>(random() % limit); }
    QStringList place() const
    {
        return GetParam() == Store::Local ? QStringList{u"local"_s, cli.folder()}
                                          : QStringList{u"remote"_s, u"corvane"_s};
    }

    void killPerson(int number)
    {
        OtherUser person(place(), {u"live"_s, QString::number(number), u"1000000"_s});
        for (unsigned lines = below(40); lines > 0; --lines)
            ledger.take(person.line());
        QThread::usleep(below(20'000));
        for (const QString &line : kill(person, u"program"_s))
            ledger.take(line);
    }
    // What is there of his backups is whole, and what he has restored.
    void killWindow(int number)
    {
        QDir().mkpath(copies());
        OtherUser sitter(place(), {u"sit"_s, QString::number(number), copies()});
        EXPECT_EQ(sitter.line(), u"sits"_s);
        bool isDamaged = false;
        const auto take = [&](const QString &line) {
            isDamaged = line == "damaging"_L1 || (isDamaged && line != "mended"_L1);
            ledger.take(line);
        };
        for (unsigned lines = below(12); lines > 0; --lines)
            take(sitter.line());
        QThread::usleep(below(500'000));
        for (const QString &line : kill(sitter, u"window"_s))
            take(line);
        const auto isMended = [&] { // what is left to the user is not
            cli.run({u"check"_s, u"--repair"_s});
            const auto other = cli.anotherUser();
            return checked(other->database).bad.isEmpty();
        };
        EXPECT_TRUE(!isDamaged || comesTrue(isMended));
        if (const QString restored = copies() + u"/restored"_s; QFile::exists(restored + u"/Corvane.sqlite"_s))
            requireSound(restored);
        for (const QFileInfo &copy : QDir(copies()).entryInfoList({u"backup*.sqlite"_s})) {
            const QTemporaryDir folder;
            EXPECT_EQ(cli.runBare({u"--data"_s, folder.path(), u"restore"_s, copy.filePath()}).status, 0);
            requireSound(folder.path());
        }
        QDir(copies()).removeRecursively();
    }
    static void requireSound(const QString &folder)
    {
        TestUser restored(QStringList{u"local"_s, folder});
        EXPECT_EQ(checked(restored.database).bad, QStringList());
    }
    QString copies() const { return cli.folder() + u"/copies"_s; }
    // Him, or what he is served by. What he has said and nobody has heard yet.
    QStringList kill(OtherUser &person, const QString &what)
    {
        const unsigned how = GetParam() == Store::Local ? 0 : below(4);
        if (how == 1)
            killBackend();
        else if (how == 2)
            OwnServer::stopAtOnce();
        ++kills[how == 1 ? u"server's process"_s : how == 2 ? u"server"_s : what];
        person.kill();
        QString said = QString::fromUtf8(person.rest());
        said.truncate(said.lastIndexOf(u'\n') + 1);
        QStringList lines = said.split(u'\n', Qt::SkipEmptyParts);
        lines.removeIf(
            [](const QString &line) { return line.startsWith("FAILED"_L1); }); // as it should, without a server
        return lines;
    }
    void killBackend()
    {
        const auto other = cli.anotherUser();
        const QStringList pids =
            rowsOf(other->database, u"SELECT pid FROM pg_stat_activity WHERE application_name LIKE 'user%'"_s);
        if (!pids.isEmpty())
            ::kill(pids.first().toInt(), SIGKILL);
    }

    // A command, killed after a part of the time that it takes. True where it had come to its end.
    bool killCommand(const QStringList &words)
    {
        ++kills[u"command "_s + words.at(0)];
        const std::unique_ptr<QProcess> process = cli.start(words);
        process->waitForStarted();
        QThread::usleep(below(static_cast<std::size_t>(longest[words.at(0)] + 20) * 1000));
        const bool isOver = process->state() == QProcess::NotRunning || process->waitForFinished(0);
        process->kill();
        process->waitForFinished();
        return isOver && process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    }
    void killImport(int number)
    {
        const QByteArray order = "K" + QByteArray::number(number);
        const QByteArray row = "V1,Office,2026-11-02,26,11," + order + ",A1,4,2\n";
        cli.writeFile(
            u"k.csv"_s,
            "VendorNo,WarehouseName,ReceiptDate,GLYear,GLPeriod,PurchaseOrderNo,ItemNo,QtyReceived,UnitCost\n" + row
                + row);
        const bool answered = killCommand({u"import"_s, u"receipts"_s, u"k.csv"_s});
        const QString lines = rows(u"SELECT count(*) FROM IReceipt I JOIN IRecDet D ON D.ReceiptID = I.ReceiptID "
                                   "WHERE PurchaseOrderNo = '%1'"_s.arg(QString::fromUtf8(order)))
                                  .value(0);
        EXPECT_TRUE(lines == "2"_L1 || (lines == "0"_L1 && !answered)) << qPrintable(lines);
    }
    // What is there of a backup is whole; what is there of a restored folder as well.
    void killBackup(int number)
    {
        const QString copy = cli.folder() + u"/copy%1"_s.arg(number);
        const bool answered = killCommand({u"backup"_s, copy});
        EXPECT_TRUE(QFile::exists(copy) || !answered);
        if (!QFile::exists(copy))
            return;
        const QString folder = cli.folder() + u"/restored%1"_s.arg(number);
        for (const bool isKilled : {true, false}) {
            QProcess restore;
            restore.start(QStringLiteral(TALLYMERE_PROGRAM), {u"--data"_s, folder, u"restore"_s, copy});
            restore.waitForStarted();
            if (isKilled) {
                QThread::usleep(below(100'000));
                restore.kill();
            }
            const CliResult result = CliRunner::finish(restore);
            const bool isThere = has(result.errors, u"holds"_s); // it was there in time
            EXPECT_TRUE(isKilled || result.status == 0 || isThere) << result;
        }
        EXPECT_TRUE(QFile::remove(copy));
        EXPECT_NE(cli.runBare({u"--data"_s, folder, u"totals"_s}).status, 3);
        requireSound(folder);
    }
    void killOne(int number)
    {
        static const QStringList others{
            u"sync|items"_s, u"sync|locations"_s,       u"init"_s, u"check|--repair"_s, u"totals"_s,
            u"history"_s,    u"report|Value by Item"_s, u"buy"_s};
        const QStringList post{u"post"_s,
                               DocumentKinds::all()[below(std::size_t(DocumentKinds::all().size()))]->name};
        const unsigned what = below(12);
        if (what == 0)
            killImport(number);
        else if (what == 1)
            killBackup(number);
        else if (what <= 3)
            killCommand(others[below(std::size_t(others.size()))].split(u'|'));
        else if (what == 4)
            EXPECT_TRUE(!killCommand(post) || cli.run(post).output.startsWith(u'0'));
        else if (what <= 6)
            killPerson(number);
        else
            killWindow(number);
    }

    QStringList rows(const QString &sql) { return rowsOf(cli.anotherUser()->database, sql); }
    // Locks of who was killed go at once, or once the server has noticed.
    void verify()
    {
        const auto other = cli.anotherUser();
        Findings found;
        ASSERT_TRUE(comesTrue([&] { return !errorOf([&] { found = checked(other->database); }); }));
        EXPECT_EQ((found.bad + ledger.bad).join(u'\n').toStdString(), "");
        unfinished = std::max(unfinished, found.unfinished);
        for (const DocumentKind *kind : DocumentKinds::all()) {
            const QString counted = u"SELECT H.%1, count(*) FROM %2 H JOIN %3 L ON L.%1 = H.%1 GROUP BY H.%1"_s.arg(
                kind->keyField, kind->headerTable, kind->lineTable);
            QHash<QString, int> lines;
            for (const QString &row : rowsOf(other->database, counted))
                lines.insert(row.section(u'|', 0, 0), row.section(u'|', 1).toInt());
            for (const Ledger::Document &document : ledger.documents(*kind)) {
                if (ledger.inDoubt == document && !lines.contains(document.second))
                    ledger.deleted.insert(document);
                else
                    EXPECT_GE(lines.value(document.second), ledger.linesOf(document).size())
                        << qPrintable(document.first + u' ' + document.second);
            }
        }
        ledger.inDoubt.reset();
    }
    CliRunner cli{GetParam()};
    std::mt19937 random{chanceSeed()};
    Ledger ledger;
    std::map<QString, int> kills;
    std::map<QString, qint64> longest{{u"backup"_s, 100}, {u"post"_s, 60}, {u"import"_s, 60}};
    int unfinished = 0;
};
ON_BOTH_STORES(KillsTest);

TEST_P(KillsTest, WhatWasAnsweredIsThereAndTheBooksAreSound)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    qputenv("TALLYMERE_TEST_SEED", QByteArray::number(seed));
    random.seed(seed);
    const int times = timesByHand(GetParam() == Store::Local ? 8 : 4);
    for (int number = 1; number <= times; ++number) {
        SCOPED_TRACE(number);
        killOne(number);
        verify();
        ASSERT_FALSE(HasFailure());
        const CliResult next = cli.run(
            {u"post"_s, DocumentKinds::all()[number % DocumentKinds::all().size()]->name, u"--retry"_s, u"60"_s});
        ASSERT_EQ(next.status, 0) << next;
    }
    for (const auto &[what, count] : kills)
        std::printf("killed %s: %d\n", qPrintable(what), count);
    std::printf("lines without a header, of documents that were being entered: at most %d documents\n", unfinished);
    ledger.print();
}

} // namespace

int main(int argc, char **argv)
{
    if (QByteArrayView(argv[argc > 1 ? 1 : 0]) != "--other-user")
        testing::AddGlobalTestEnvironment(new OwnServer);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return runTests(argc, argv, {{u"live"_s, live}, {u"sit"_s, sit}});
}
