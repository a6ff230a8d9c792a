#include "tests/endurance/cuts.h"

#include "tests/endurance/books.h"
#include "tests/support/chance.h"

#include <algorithm>
#include <cstdio>
#include <QDir>
#include <QElapsedTimer>
#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Storage::Operation;
using Storage::Step;

namespace {

bool isPoint(const Operation &operation)
{
    return operation.step == Step::Sync || operation.step == Step::SyncFolder || operation.step == Step::Answered;
}

int weightOf(const Operation &operation)
{
    constexpr int ofName = 3;
    constexpr int ofPoint = 4;
    if (isPoint(operation))
        return ofPoint;
    return operation.step == Step::Write || operation.step == Step::Truncate ? 1 : ofName;
}

// The books' own files, named as those of a folder that holds nothing else. What is still being made is no books yet.
Disk::Files ofBooks(const Disk::Files &files, const QString &books)
{
    Disk::Files own;
    const std::string stem = books.toStdString();
    for (const auto &[path, file] : files)
        if (path.starts_with(stem) && path.find('/', stem.size()) == std::string::npos)
            own["Corvane" + path.substr(stem.size())] = file;
    return own;
}

} // namespace

Cuts::Cuts(std::vector<Stage> stages)
    : m_stages(std::move(stages))
{
    QTemporaryDir folder(scratch(u"day"_s));
    Storage::record(folder.path().toStdString());
    for (const Stage &stage : m_stages) {
        stage.run(folder.path());
        Storage::answered(stage.name.toStdString());
        const size_t done = Storage::recorded().size();
        m_stock << stockIn(folder.path());
        if (&stage == &m_stages.back())
            m_operations.assign(Storage::recorded().begin(), Storage::recorded().begin() + done);
    }
    Storage::rest();
    QSet<QString> books;
    for (const Operation &one : m_operations) {
        const QString path = QString::fromStdString(one.step == Step::Rename ? one.to : one.path);
        if (path.endsWith(".sqlite"_L1) && !path.contains("/.copy-"_L1) && !path.startsWith(".copy-"_L1))
            books << path.chopped(7);
    }
    m_books = books.values();
}

QString Cuts::verdict(const Disk::Files &files, const QString &books)
{
    const Disk::Files own = ofBooks(files, books);
    size_t key = 0;
    for (const auto &[path, file] : own)
        key = key * 31 + std::hash<std::string>()(path + std::to_string(file.number) + file.bytes);
    const auto known = m_known.find(key);
    if (known != m_known.end())
        return known->second;
    const QTemporaryDir folder(scratch(u"state"_s));
    putFiles(own, folder.path());
    return m_known[key] = verdictOn(folder.path());
}

Cuts::Verdicts Cuts::verdicts(const Disk::Files &files)
{
    Verdicts found;
    for (const QString &books : m_books)
        found[books] = verdict(files, books);
    return found;
}

// With nothing lost: what any cut may leave.
std::vector<Cuts::Verdicts> Cuts::verdictsAtSyncs()
{
    std::vector<Verdicts> found{verdicts({})};
    std::mt19937 unused;
    Disk disk;
    for (const Operation &operation : m_operations) {
        if (isPoint(operation))
            found.push_back(verdicts(disk.after(Disk::Kept::All, unused)));
        disk.take(operation);
    }
    return found;
}

void Cuts::judge(int wanted, unsigned seed)
{
    const std::vector<Verdicts> points = verdictsAtSyncs();
    int weights = 0;
    for (const Operation &operation : m_operations)
        weights += weightOf(operation);
    std::mt19937 random(seed);
    Disk disk;
    size_t stage = 0;
    size_t point = 0;
    size_t answered = 0; // the last point of the former stages
    double due = 0;
    for (const Operation &operation : m_operations) {
        std::vector<const Verdicts *> legal;
        for (size_t i = answered; i <= point + 1; ++i)
            legal.push_back(&points[i]);
        for (due += double(wanted) * weightOf(operation) / weights; due >= 1; --due) {
            const auto chance = random() % 5;
            const auto kept = chance == 0 ? Disk::Kept::All : chance == 1 ? Disk::Kept::None : Disk::Kept::Some;
            judgeState(disk.after(kept, random), stage, legal);
        }
        point += isPoint(operation) ? 1 : 0;
        if (operation.step == Step::Answered) {
            std::printf("  %s: %d states so far\n", operation.path.c_str(), states);
            std::fflush(stdout);
            ++stage;
            answered = point;
        }
        disk.take(operation);
    }
    distinct = static_cast<int>(m_known.size());
}

void Cuts::expectNoFaults(int wanted)
{
    QElapsedTimer time;
    time.start();
    const unsigned seed = chanceSeed();
    judge(wanted, seed);
    std::printf("%d states, %d distinct of their books, %d runs resumed, %.1f s\n", states, distinct, resumed,
                double(time.elapsed()) / 1000);
    EXPECT_EQ(faults.size(), 0) << "TALLYMERE_TEST_SEED=" << seed << '\n'
                                << faults.mid(0, 5).join(u'\n').toStdString();
}

void Cuts::judgeState(const Disk::Files &files, size_t stage, const std::vector<const Verdicts *> &legal)
{
    ++states;
    const Verdicts now = verdicts(files);
    QString all;
    for (const auto &[books, verdict] : now) {
        all += verdict;
        const auto hasIt = [&, books = books, verdict = verdict](const Verdicts *one) {
            return one->at(books) == verdict;
        };
        const QString &before = legal.front()->at(books);
        const bool maybeUnsound = verdict == before || m_stages[stage].damages;
        if (std::any_of(legal.begin(), legal.end(), hasIt) && (isSound(verdict) || maybeUnsound))
            continue;
        if (before == noBooks && !isSound(verdict)) // in the making, and nobody was told of them
            continue;
        faults << u"%1, %2: %3 (state %4)"_s.arg(m_stages[stage].name, books, verdict).arg(states);
        return;
    }
    const QString resumedAs = m_stages[stage].name + all;
    if (now == *legal.back() || m_resumed.contains(resumedAs))
        return;
    m_resumed << resumedAs;
    resume(files, stage);
}

void Cuts::resume(const Disk::Files &files, size_t stage)
{
    ++resumed;
    const QTemporaryDir folder(scratch(u"next"_s));
    for (const QString &books : m_books) {
        const QString place = folder.path() + u'/' + books;
        const Disk::Files own = ofBooks(files, books);
        if (own.empty())
            continue;
        const QTemporaryDir parts(scratch(u"parts"_s));
        putFiles(own, parts.path());
        QDir().mkpath(QFileInfo(place).path());
        for (const QString &part : QDir(parts.path()).entryList(QDir::Files))
            QFile::rename(parts.filePath(part), place + part.mid(7));
    }
    try {
        m_stages[stage].run(folder.path());
    } catch (const std::exception &error) {
        if (!QByteArray(error.what()).contains("already")) // entered whole
            faults << u"%1: the next run fails: %2"_s.arg(m_stages[stage].name, QString::fromUtf8(error.what()));
    }
    if (stockIn(folder.path()) != m_stock[static_cast<qsizetype>(stage)])
        faults << u"%1: the next run does not come to the same stock"_s.arg(m_stages[stage].name);
}
