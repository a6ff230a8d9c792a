// Posting of 100,000 lines of receipts, and of usage, against the same row changes by raw prepared statements: in the
// file store three statements a line in one transaction with the same cache and everything else in memory, which is
// the least that the changes cost; on the server statement by statement with a transaction for each document.
// Prints the ratio of the medians. Usage: bench_posting [local|remote] [ROUNDS]

#include "bench/benchdata.h"
#include "bench/rawposting.h"
#include "engine/query.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

#include <cstdio>
#include <malloc.h>
#include <QCoreApplication>

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
        + one(u"SELECT count(*) FROM IUsage WHERE Posted = true"_s);
}

struct Kind
{
    RawDocuments raw;
    const Tallymere::DocumentKind &ours;
};

struct Run
{
    Cost cost;
    double memory = 0; // MB above what the process had before
    QString result;
};

Run postOurs(const Kind &kind, const BenchData &data)
{
    const auto copy = data.copy();
    copy->database().connection();
    Quiet quiet;
    Run run;
    malloc_trim(0); // what earlier runs have freed would hide what this one takes
    resetPeakMemory();
    const double before = currentMemory();
    run.cost = costOf([&] { Tallymere::DocumentPosting(copy->database(), kind.ours).run(quiet, quiet); });
    run.memory = peakMemory() - before;
    run.result = result(copy->database());
    return run;
}

Run postRaw(const Kind &kind, Store store, const BenchData &data)
{
    const auto copy = data.copy();
    Run run;
    run.cost = costOf([&] {
        store == Store::Local ? postRawSqlite(kind.raw, copy->location())
                              : postRawPostgres(kind.raw, copy->location());
    });
    run.result = result(copy->database());
    return run;
}

void compare(const Kind &kind, Store store, int history, int rounds)
{
    BenchData::Size size;
    (kind.raw == RawDocuments::Usage ? size.usages : size.receipts) = documents;
    size.history = history;
    const BenchData data(store, size);
    const int lines = documents * size.linesEach;
    std::vector<Cost> ours, raws;
    double memory = 0;
    for (int round = 0; round < rounds; ++round) {
        const Run theirs = postRaw(kind, store, data);
        const Run mine = postOurs(kind, data);
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
        "%-8s %-6s history %9d: ours %6.2f s (%6.0f lines/s, processor %5.2f s), raw %6.2f s (%6.0f lines/s, "
        "processor %5.2f s), ours/raw %.2f, memory +%.0f MB\n",
        qPrintable(kind.ours.name), storeName(store), history, our, lines / our, middle(ours, &Cost::processor),
        raw, lines / raw, middle(raws, &Cost::processor), our / raw, memory);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString only = QCoreApplication::arguments().value(1);
    const int rounds = std::max(1, QCoreApplication::arguments().value(2, u"3"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote}) {
        if (!only.isEmpty() && only != QString::fromLatin1(storeName(store)).toLower())
            continue;
        for (const Kind &kind : {Kind{RawDocuments::Receipts, Tallymere::DocumentKinds::receipt()},
                                 Kind{RawDocuments::Usage, Tallymere::DocumentKinds::usage()}})
            for (const int history : {0, 1'000'000})
                compare(kind, store, history, rounds);
    }
    return 0;
}
