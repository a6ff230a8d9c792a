// A day of commands, and the power goes at any moment of it.

#include "tests/endurance/day.h"
#include "tests/support/otheruser.h"

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
    const int times = timesByHand(0);
    Cuts(wholeDay(inputs, times > 0)).expectNoFaults(times > 0 ? times : 80);
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
