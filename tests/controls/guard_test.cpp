#include "controls/guard.h"
#include "engine/error.h"
#include "frame/shared/ruleerror.h"
#include "tests/support/spokenprompts.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Stop
{
    const char *name;
    std::function<void()> handler;
    QStringList expected; // what happened, in order
};

} // namespace

TEST(Guard, showsWhatStopsAHandlerAndLetsNothingPast)
{
    const Stop stops[] = {
        {"done", [] {}, {u"done"_s}},
        {"rule", [] { throw RuleError(u"Enter it"_s, u"GLYear"_s); }, {u"focus GLYear"_s, u"error: Enter it"_s}},
        {"rule without field", [] { throw RuleError(u"No"_s); }, {u"error: No"_s}},
        {"silent", [] { throw SilentAbort(u"GLPeriod"_s); }, {u"focus GLPeriod"_s}},
        {"engine", [] { throw Engine::EngineError(Engine::ErrorCode::DiskFull, u"Full"_s); }, {u"error: Full"_s}},
        {"other", [] { throw std::range_error("Too large"); }, {u"error: Too large"_s}},
    };
    for (const Stop &stop : stops) {
        SpokenPrompts prompts;
        const Guard guard(prompts, [&](const QString &column) { prompts.said << u"focus "_s + column; });
        if (guard.run(stop.handler))
            prompts.said << u"done"_s;
        EXPECT_EQ(prompts.said, stop.expected) << stop.name;
    }
}
