// A day of commands, and the power goes at any moment of it.

#include "tests/endurance/day.h"
#include "tests/support/chance.h"
#include "tests/support/otheruser.h"

#include <cstdio>
#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

std::vector<Stage> wholeDay(const Inputs &inputs, bool isLong)
{
    std::vector<Stage> stages = firstStages(inputs);
    if (!isLong && !qEnvironmentVariableIsEmpty("TALLYMERE_TEST_NETWORK"))
        return stages; // a rollback journal is synced more often than the tests have time for
    for (Stage &stage : laterStages(inputs))
        stages.push_back(std::move(stage));
    stages.push_back(formerRelease());
    stages.push_back(command(u"former"_s, {u"post"_s, u"receipts"_s}));
    if (isLong)
        stages.push_back(command(u"kitchen"_s, {u"sample"_s}));
    return stages;
}

void tell(const Cuts &cuts, qint64 milliseconds)
{
    std::printf("%d states, %d distinct of their books, %d runs resumed, %.1f s\n", cuts.states, cuts.distinct,
                cuts.resumed, double(milliseconds) / 1000);
}

class PowerCuts : public testing::TestWithParam<const char *>
{
protected:
    PowerCuts() { qputenv("TALLYMERE_TEST_NETWORK", QLatin1StringView(GetParam()) == "Rollback"_L1 ? "1" : ""); }
    ~PowerCuts() override { qunsetenv("TALLYMERE_TEST_NETWORK"); }

    Inputs inputs;
};
INSTANTIATE_TEST_SUITE_P(Journals, PowerCuts, testing::Values("Log", "Rollback"),
                         [](const auto &journal) { return std::string(journal.param); });

TEST_P(PowerCuts, LeaveTheBooksAsTheyWereAnswered)
{
    QElapsedTimer time;
    time.start();
    const unsigned seed = chanceSeed();
    const int times = timesByHand(0);
    Cuts cuts(wholeDay(inputs, times > 0));
    cuts.judge(times > 0 ? times : 80, seed);
    tell(cuts, time.elapsed());
    EXPECT_EQ(cuts.faults.size(), 0) << "TALLYMERE_TEST_SEED=" << seed << '\n'
                                     << cuts.faults.mid(0, 5).join(u'\n').toStdString();
}

// The test of the test.
TEST_P(PowerCuts, OfADiskThatOnlySaysThatItHasWrittenAreFoundOut)
{
    Storage::dropSyncs(true);
    std::vector<Stage> stages = firstStages(inputs);
    stages.resize(3);
    Cuts cuts(std::move(stages));
    Storage::dropSyncs(false);
    cuts.judge(50, 1);
    EXPECT_GT(cuts.faults.size(), 0);
}

} // namespace
