#include "controls/guard.h"
#include "engine/error.h"
#include "frame/shared/ruleerror.h"
#include "tests/support/spokenprompts.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(Guard, showsWhatStopsAHandlerAndLetsNothingPast)
{
    const std::tuple<const char *, std::function<void()>, QStringList> stops[] = {
        // and what happens, in order
        {"done", [] {}, {u"done"_s}},
        {"rule", [] { throw RuleError(u"Enter it"_s, u"GLYear"_s); }, {u"focus GLYear"_s, u"error: Enter it"_s}},
        {"rule without field", [] { throw RuleError(u"No"_s); }, {u"error: No"_s}},
        {"silent", [] { throw SilentAbort(u"GLPeriod"_s); }, {u"focus GLPeriod"_s}},
        {"engine", [] { throw Engine::EngineError(Engine::ErrorCode::DiskFull, u"Full"_s); }, {u"error: Full"_s}},
        {"other", [] { throw std::range_error("Too large"); }, {u"error: Too large"_s}},
    };
    for (const auto &[name, handler, expected] : stops) {
        SpokenPrompts prompts;
        const Guard guard(prompts, [&](const QString &column) { prompts.said << u"focus "_s + column; });
        if (guard.run(handler))
            prompts.said << u"done"_s;
        EXPECT_EQ(prompts.said, expected) << name;
    }
}
