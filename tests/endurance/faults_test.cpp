// A call of the system, or of SQLite for memory, fails: any of those that a day's work makes.

#include "tests/endurance/books.h"
#include "tests/endurance/day.h"
#include "tests/support/files.h"
#include "tests/support/otheruser.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QSet>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Storage::Call;

extern "C" void __attribute__((weak)) __lsan_do_leak_check();

namespace {

struct Kind
{
    std::string name; // of the test
    Storage::Fault fault; // but for its number
    bool ofMemory = false;
    bool alwaysEach = false; // there are few of them
};
const Kind kinds[] = {
    {"OpenEACCES", {Call::Open, 0, EACCES}},
    {"OpensEMFILE", {Call::Open, 0, EMFILE, true}},
    {"WriteEIO", {Call::Write, 0, EIO}},
    {"WritesENOSPC", {Call::Write, 0, ENOSPC, true}},
    {"SyncEIO", {Call::Sync, 0, EIO}},
    {"SyncsEIO", {Call::Sync, 0, EIO, true}, false, true},
    {"LockEAGAIN", {Call::Lock, 0, EAGAIN}},
    {"LockEIO", {Call::Lock, 0, EIO}},
    {"NameEIO", {Call::Name, 0, EIO}},
    {"Memory", {Call::Open, 0, ENOMEM}, true},
    {"MemoryForGood", {Call::Open, 0, ENOMEM, true}, true},
};
void PrintTo(const Kind &kind, std::ostream *out) { *out << kind.name; }

sqlite3_mem_methods realMemory;
Storage::Fault memoryFault{Call::Open, 0, 0};
int memoryCalls = 0;

bool lacksMemory()
{
    ++memoryCalls;
    return memoryFault.number > 0
        && (memoryCalls == memoryFault.number || (memoryFault.stays && memoryCalls > memoryFault.number));
}

void takeSqlitesMemory()
{
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &realMemory);
    sqlite3_mem_methods methods = realMemory;
    methods.xMalloc = [](int size) { return lacksMemory() ? nullptr : realMemory.xMalloc(size); };
    methods.xRealloc = [](void *old, int size) { return lacksMemory() ? nullptr : realMemory.xRealloc(old, size); };
    sqlite3_config(SQLITE_CONFIG_MALLOC, &methods);
}

QSet<QString> namesIn(const QString &folder)
{
    QSet<QString> names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        names << entries.next().mid(folder.size());
    return names;
}

void copyFolder(const QString &from, const QString &to)
{
    std::filesystem::copy(from.toStdString(), to.toStdString(), std::filesystem::copy_options::recursive);
}

bool holdTheSame(const QString &folder, const QString &other)
{
    const QSet<QString> names = namesIn(folder);
    return names == namesIn(other) && std::ranges::all_of(names, [&](const QString &name) {
               return QFileInfo(folder + name).isDir() || name.endsWith(".lck"_L1)
                   || contentOf(folder + name) == contentOf(other + name);
           });
}

// A stage, the folder as it finds it and what it makes of that.
struct Task
{
    Stage stage;
    std::unique_ptr<QTemporaryDir> before;
    QString stockBefore;
    QString stockAfter;
    QSet<QString> namesAfter;
};

class Trial
{
public:
    Trial(const Task &task, const Kind &kind, int number)
        : m_task(task)
        , m_kind(kind)
        , m_fault(kind.fault)
    {
        m_fault.number = number;
        copyFolder(task.before->path(), m_folder.path());
    }

    int calls = 0;
    QStringList wrong;

    void run()
    {
        takeSqlitesMemory();
        const auto handles = [] { return entriesOf(u"/proc/self/fd"_s).size(); };
        const qsizetype before = handles();
        const Outcome outcome = attempt(true);
        if (sqlite3_memory_used() != 0)
            wrong << u"SQLite keeps %1 bytes"_s.arg(sqlite3_memory_used());
        if (handles() != before)
            wrong << u"files stay open"_s;
        if (outcome.status != 0 && outcome.status != 1 && outcome.status != 3)
            wrong << u"ends with %1"_s.arg(outcome.status);
        if (outcome.status != 0 && outcome.errors.size() < 20)
            wrong << u"says only '%1'"_s.arg(outcome.errors);
        judge(outcome.status == 0);
        const Outcome next = outcome.status == 0 ? outcome : attempt(false);
        const bool isDone = next.status == 0 || next.errors.contains("already"_L1);
        if (!isDone || (!m_isPostedInPart && stockIn(m_folder.path()) != m_task.stockAfter))
            wrong << u"the next try comes to nothing: "_s + next.errors;
        if (!wrong.isEmpty())
            wrong << u"said: "_s + outcome.errors;
    }

private:
    Outcome attempt(bool fails)
    {
        if (fails && m_kind.ofMemory) {
            memoryFault = m_fault;
            memoryCalls = 0;
        } else if (fails) {
            Storage::watch(m_folder.path().toStdString(), m_fault);
        }
        Outcome outcome;
        try {
            m_task.stage.run(m_folder.path());
            outcome.status = 0;
        } catch (const Refusal &refusal) {
            outcome = {refusal.status, QString::fromUtf8(refusal.what())};
        } catch (const std::exception &error) {
            outcome = {1, QString::fromUtf8(error.what())};
        }
        if (fails)
            calls = m_kind.ofMemory ? memoryCalls : Storage::calls();
        memoryFault.number = 0;
        Storage::rest();
        return outcome;
    }

    void judge(bool isDone)
    {
        if (!isDone && holdTheSame(m_folder.path(), m_task.before->path()))
            return; // nothing has been done
        const bool isBetween = m_task.stage.name.startsWith("post"_L1) || m_task.stage.name == "init"_L1
            || m_task.stage.name.startsWith("restore"_L1);
        for (const QString &name : namesIn(m_folder.path()) - m_task.namesAfter - namesIn(m_task.before->path()))
            if (!name.contains("/Corvane."_L1) && !name.contains("before-repair"_L1) && m_fault.call != Call::Name)
                wrong << u"leaves %1 behind"_s.arg(name);
        for (const QString &books : QDir(m_folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString verdict = verdictOn(m_folder.filePath(books));
            const bool isNew = !QDir(m_task.before->filePath(books)).exists();
            if (verdict == noBooks || isSound(verdict) || (isNew && !isDone) || m_task.stage.damages)
                continue;
            m_isPostedInPart =
                !isDone && m_kind.ofMemory && m_task.stage.name.startsWith("post"_L1) && tellsPostedInPart(verdict);
            if (!m_isPostedInPart)
                wrong << verdict;
        }
        const QString stock = stockIn(m_folder.path());
        if (isDone ? stock != m_task.stockAfter
                   : stock != m_task.stockBefore && stock != m_task.stockAfter && !isBetween)
            wrong << u"the stock is neither before nor after: "_s + stock;
        else if (!isDone && !isBetween && stock != m_task.stockBefore)
            wrong << u"is answered with an error, and has been done: "_s + stock;
    }

    // A failure in the middle of a document keeps what was written before it: the mark comes first. That is told.
    static bool tellsPostedInPart(const QString &verdict)
    {
        return verdict.contains("It is marked as posted, and not in the history"_L1)
            && verdict.contains("tallymere: 1 finding "_L1);
    }

    bool m_isPostedInPart = false;
    const Task &m_task;
    const Kind &m_kind;
    Storage::Fault m_fault;
    QTemporaryDir m_folder{scratch(u"fault"_s)};
};

// In a process of its own, which may crash or hang. How many calls of the kind it has made; what went wrong, or nothing.
std::pair<int, QString> tryOnce(const Task &task, const Kind &kind, int number)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        constexpr unsigned patience = 120;
        alarm(patience);
        QByteArray said;
        {
            Trial trial(task, kind, number);
            trial.run();
            said = QByteArray::number(trial.calls) + '\n' + trial.wrong.join(u"; "_s).toUtf8();
        }
        if (__lsan_do_leak_check)
            __lsan_do_leak_check(); // ends the process where something is lost
        const ssize_t written = write(ends[1], said.constData(), said.size());
        _exit(written == said.size() ? 0 : 1);
    }
    close(ends[1]);
    QFile pipe;
    pipe.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QByteArray said = pipe.readAll();
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0)
        return {0, u"ends by itself (%1)"_s.arg(status)};
    return {said.left(said.indexOf('\n')).toInt(), QString::fromUtf8(said.mid(said.indexOf('\n') + 1))};
}

std::vector<Task> tasks(const Inputs &inputs, const QStringList &names)
{
    std::vector<Stage> stages = firstStages(inputs);
    for (Stage &stage : laterStages(inputs))
        stages.push_back(std::move(stage));
    QTemporaryDir folder(scratch(u"day"_s));
    std::vector<Task> found;
    for (const Stage &stage : stages) {
        auto before = std::make_unique<QTemporaryDir>(scratch(u"before"_s));
        copyFolder(folder.path(), before->path());
        const QString stock = stockIn(folder.path());
        stage.run(folder.path());
        if (names.isEmpty() || names.contains(stage.name))
            found.push_back({stage, std::move(before), stock, stockIn(folder.path()), namesIn(folder.path())});
    }
    return found;
}

struct Faults : testing::TestWithParam<Kind>
{
    static void SetUpTestSuite()
    {
        inputs.emplace();
        const QStringList names = {u"enter"_s, u"import adjustments"_s, u"post usage"_s,
                                   u"backup @/backup.sqlite"_s, u"restore @/backup.sqlite"_s};
        all = tasks(*inputs, most() == 1 || most() >= everyCall ? names : QStringList());
    }
    static void TearDownTestSuite()
    {
        all.clear();
        inputs.reset();
    }
    static int most() { return timesByHand(1); }

    static constexpr int everyCall = 100'000;
    static inline std::optional<Inputs> inputs;
    static inline std::vector<Task> all;
    static inline int spread = 0; // so that not every task fails at its first calls
};
INSTANTIATE_TEST_SUITE_P(, Faults, testing::ValuesIn(kinds), [](const auto &kind) { return kind.param.name; });

// So many trials of each kind of fault in each task are spread over its calls; where there are so many as no task has calls,
// each call of a save, an import, a posting, a backup and a restore fails once.
TEST_P(Faults, LeaveNothingHalfDoneAndAClearWord)
{
    const Kind &kind = GetParam();
    QElapsedTimer time;
    time.start();
    int trials = 0;
    int wrong = 0;
    for (const Task &task : all) {
        const auto [calls, unasked] = tryOnce(task, kind, INT_MAX);
        EXPECT_EQ(unasked.toStdString(), "") << task.stage.name.toStdString();
        std::printf("  after %d faults: %s, %d calls\n", trials, qPrintable(task.stage.name), calls);
        std::fflush(stdout);
        const int step = kind.alwaysEach ? 1 : std::max(1, calls / most());
        for (int number = 1 + spread++ * 7 % step; number <= calls; number += step, ++trials) {
            const QString fault = tryOnce(task, kind, number).second;
            if (fault.isEmpty() || ++wrong > 20)
                continue;
            ADD_FAILURE() << task.stage.name.toStdString() << ", " << number << " of " << calls << ": "
                          << fault.toStdString();
        }
    }
    std::printf("%d faults, %d not taken well, %.1f s\n", trials, wrong, double(time.elapsed()) / 1000);
    EXPECT_EQ(wrong, 0);
}

} // namespace
