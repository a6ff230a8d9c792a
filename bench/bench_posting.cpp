// Posting of 100,000 lines of receipts, of usage and of adjustments, against the same row changes by raw prepared statements: in the
// file store three statements a line in one transaction with the same cache and everything else in memory, which is
// the least that the changes cost; on the server statement by statement with a transaction for each document.
// Either is a process of its own, measured from start to end: closing a file copies its log back, for both alike.
// Prints the ratio of the medians. Usage: bench_posting [local|remote] [ROUNDS]

#include "bench/benchdata.h"
#include "bench/rawposting.h"
#include "engine/records/query.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

#include <algorithm>
#include <cstdio>
#include <QCoreApplication>
#include <QProcess>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int documents = 5'000;

class Quiet final : public Tallymere::Prompts, public Tallymere::Progress
{
public:
    void inform(const QString &) override { }
    void warn(const QString &) override { }
    void error(const QString &) override { }
    bool confirm(Tallymere::Question, const QString &) override { return false; }
    Tallymere::Answer yesNoCancel(const QString &, const QString &) override { return Tallymere::Answer::Cancel; }
    bool retry(const QString &) override { return false; }
    void start(int) override { }
    void step() override { }
    void finish() override { }
};

// Sums that differ when any line was posted otherwise.
QString result(Engine::Database &database)
{
    const auto one = [&database](const QString &sql) { return Engine::singleValue(database, sql).toText(); };
    return one(u"SELECT count(*) FROM IHist"_s) + u' '
        + one(u"SELECT round(sum(Quantity * UnitCost) * 100) FROM IHist"_s) + u' '
        + one(u"SELECT sum(QtyOnHand * ItemID * WarehouseID) FROM IBalance"_s) + u' '
        + one(u"SELECT round(sum(WgtAvgCost * ItemID) * 100) FROM Item"_s) + u' '
        + one(u"SELECT count(*) FROM IReceipt WHERE Posted = true"_s) + u' '
        + one(u"SELECT count(*) FROM IUsage WHERE Posted = true"_s) + u' '
        + one(u"SELECT count(*) FROM IAdjust WHERE Posted = true"_s) + u' '
        + one(u"SELECT count(*) FROM IHist WHERE UnitCost IS NULL"_s);
}

struct Run
{
    Cost cost;
    double memory = 0; // MB above what the process had before
    QString result;
};

double postOurs(const Tallymere::DocumentKind &kind, const QStringList &place)
{
    TestUser user(place);
    user.database.connection();
    Quiet quiet;
    const double before = currentMemory();
    Tallymere::DocumentPosting(user.database, kind).run(quiet, quiet);
    return peakMemory() - before;
}

struct Measured
{
    const Tallymere::DocumentKind &kind;
    RawDocuments raw;
    int BenchData::Size::*count;
};

const std::vector<Measured> &measured()
{
    using namespace Tallymere;
    static const std::vector<Measured> kinds = {
        {DocumentKinds::receipt(), RawDocuments::Receipts, &BenchData::Size::receipts},
        {DocumentKinds::usage(), RawDocuments::Usage, &BenchData::Size::usages},
        {DocumentKinds::adjustment(), RawDocuments::Adjustments, &BenchData::Size::adjustments}};
    return kinds;
}

const Measured &measured(const QString &name)
{
    return *std::ranges::find_if(measured(), [&](const Measured &one) { return one.kind.name == name; });
}

void postRaw(RawDocuments kind, const QStringList &place)
{
    const auto post = place[0] == "local"_L1 ? postRawSqlite : postRawPostgres;
    post(kind, rawLocation(place));
}

// In the process that runProcess() starts: "post", whose posting, the kind's name, the place.
int postOnce(const QStringList &words)
{
    const Measured &one = measured(words[2]);
    if (words[1] == "raw"_L1)
        postRaw(one.raw, words.mid(3));
    else
        std::printf("%f", postOurs(one.kind, words.mid(3)));
    return 0;
}

Run runProcess(const QString &whose, const Tallymere::DocumentKind &kind, const BenchData &data)
{
    const auto copy = data.copy();
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Run run;
    run.cost = costOf([&] {
        process.start(QCoreApplication::applicationFilePath(),
                      QStringList{u"post"_s} << whose << kind.name << copy->place());
        process.waitForFinished(-1);
    });
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error("A posting has failed.");
    run.memory = process.readAllStandardOutput().toDouble();
    run.result = result(copy->database());
    return run;
}

void compare(const Measured &one, Store store, int history, int rounds)
{
    const Tallymere::DocumentKind &kind = one.kind;
    BenchData::Size size;
    size.*one.count = documents;
    size.history = history;
    const BenchData data(store, size);
    const int lines = documents * size.linesEach;
    std::vector<Cost> ours, raws;
    double memory = 0;
    for (int round = 0; round < rounds; ++round) {
        const Run theirs = runProcess(u"raw"_s, kind, data);
        const Run mine = runProcess(u"ours"_s, kind, data);
        ours.push_back(mine.cost);
        raws.push_back(theirs.cost);
        memory = std::max(memory, mine.memory);
        if (mine.result != theirs.result)
            std::printf("  DIFFERENT RESULTS\n  ours %s\n  raw  %s\n", qPrintable(mine.result),
                        qPrintable(theirs.result));
    }
    const auto middle = [](const std::vector<Cost> &costs, double Cost::*part) {
        std::vector<double> values;
        for (const Cost &cost : costs)
            values.push_back(cost.*part);
        return median(values);
    };
    const double our = middle(ours, &Cost::wall);
    const double raw = middle(raws, &Cost::wall);
    std::printf(
        "%-11s %-6s history %9d: ours %6.2f s (%6.0f lines/s, processor %5.2f s), raw %6.2f s (%6.0f lines/s, "
        "processor %5.2f s), ours/raw %.2f, memory +%.0f MB\n",
        qPrintable(kind.name), storeName(store), history, our, lines / our, middle(ours, &Cost::processor), raw,
        lines / raw, middle(raws, &Cost::processor), our / raw, memory);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == "post"_L1)
        return postOnce(QCoreApplication::arguments().mid(1));
    const QString only = QCoreApplication::arguments().value(1);
    const int rounds = std::max(1, QCoreApplication::arguments().value(2, u"3"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote}) {
        if (!only.isEmpty() && only != QString::fromLatin1(storeName(store)).toLower())
            continue;
        for (const Measured &one : measured())
            for (const int history : {0, 1'000'000})
                compare(one, store, history, rounds);
    }
    return 0;
}
