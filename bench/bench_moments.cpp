// What reading one moment costs those who post meanwhile. 60,000 lines of receipts are posted on a history of 200,000
// rows: alone; beside a moment that stands open from before the first document to after the last, as that of a long
// preview does; beside reports that are made one after the other, read statement by statement; and beside the same
// reports, each read at one moment. Whoever posts and whoever reads is a process of its own, as many cores as there are;
// prints what the poster takes, as medians and ratios. Usage: bench_moments [local|remote] [ROUNDS]

#include "bench/benchdata.h"
#include "engine/store/readmoment.h"
#include "reports/reportlist.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

#include <cstdio>
#include <QCoreApplication>
#include <QProcess>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// --- the processes ---------------------------------------------------------------------------------------------------

void post(Engine::Database &database)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    DocumentPosting(database, DocumentKinds::receipt()).run(prompts, progress);
}

void readReport(Engine::Database &database)
{
    const ReportDescription &report = *ReportList::find(u"Perpetual by Item /Location"_s);
    const auto rows = report.rows(database, report, {.period = 1, .year = 2026});
    Printing::ReportRow row;
    while (rows->next(row)) { }
}

void sayReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

// Until it is killed.
[[noreturn]] void read(const QString &how, Engine::Database &database)
{
    database.connection();
    std::optional<Engine::ReadMoment> moment;
    if (how == "open"_L1) {
        moment.emplace(database);
        sayReady();
        std::getchar();
    }
    for (bool first = true;; first = false) {
        if (how == "moment"_L1)
            readReport(Engine::ReadMoment(database).database());
        else
            readReport(database);
        if (first)
            sayReady();
    }
}

int play(const QStringList &words)
{
    TestUser user(words.mid(2));
    if (words[1] == "post"_L1)
        post(user.database);
    else
        read(words[1], user.database);
    return 0;
}

std::unique_ptr<QProcess> start(const QString &part, const BenchData::Copy &copy)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), QStringList{u"play"_s, part} << copy.place());
    return process;
}

// --- measuring -------------------------------------------------------------------------------------------------------

Cost costOfPosting(const BenchData &data, const QString &reader)
{
    const auto copy = data.copy();
    std::unique_ptr<QProcess> reading;
    if (!reader.isEmpty()) {
        reading = start(reader, *copy);
        reading->waitForReadyRead(-1);
    }
    const Cost cost = costOf([&] {
        const auto posting = start(u"post"_s, *copy);
        posting->waitForFinished(-1);
        if (posting->exitStatus() != QProcess::NormalExit || posting->exitCode() != 0)
            throw std::runtime_error("The posting has failed.");
    });
    if (reading && reading->state() != QProcess::Running)
        throw std::runtime_error("The reader has failed.");
    if (reading) {
        reading->kill();
        reading->waitForFinished(-1);
    }
    return cost;
}

void measure(Store store, int rounds)
{
    const BenchData data(store, {.receipts = 3'000, .history = 200'000});
    const QStringList readers{QString(), u"open"_s, u"statements"_s, u"moment"_s};
    QHash<QString, std::vector<double>> walls, processors;
    for (int round = 0; round < rounds; ++round) {
        for (const QString &reader : readers) {
            const Cost cost = costOfPosting(data, reader);
            walls[reader].push_back(cost.wall);
            processors[reader].push_back(cost.processor);
        }
    }
    const auto ratio = [](QHash<QString, std::vector<double>> &costs, const QString &a, const QString &b) {
        return median(costs[a]) / median(costs[b]);
    };
    std::printf(
        "%-6s posting alone %.2f s (processor %.2f s); beside an open moment %.2f of that (processor %.2f); "
        "beside reports of one moment %.2f of what it takes beside reports read by statements (processor %.2f)\n",
        storeName(store), median(walls[QString()]), median(processors[QString()]),
        ratio(walls, u"open"_s, QString()), ratio(processors, u"open"_s, QString()),
        ratio(walls, u"moment"_s, u"statements"_s), ratio(processors, u"moment"_s, u"statements"_s));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    if (words.value(0) == "play"_L1)
        return play(words);
    const int rounds = std::max(1, words.value(1, u"3"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote})
        if (words.value(0).isEmpty() || words[0] == QString::fromLatin1(storeName(store)).toLower())
            measure(store, rounds);
    return 0;
}
