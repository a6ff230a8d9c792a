#include "data/fiscalperiod.h"

#include "frame/shared/ruleerror.h"
#include "tests/data/printers.h"
#include "tests/data/recordingprompts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(FiscalPeriod, HalvesOfTheDefaultStandForThemselves)
{
    const QDate today(2026, 11, 24);
    FiscalSettings settings;
    EXPECT_EQ(defaultPeriod(settings, today), (Period{2026, 11}));
    settings.defaultPeriod.number = 3;
    EXPECT_EQ(defaultPeriod(settings, today), (Period{2026, 3}));
    settings.defaultPeriod = {2025, 0};
    EXPECT_EQ(defaultPeriod(settings, today), (Period{2025, 11}));
}

TEST(FiscalPeriod, RangesAreJudgedInOrder)
{
    FiscalSettings set;
    set.fiscalYear = 2004;
    set.errorFrom = {2004, 1};
    set.errorTo = {2004, 12};
    set.warnFrom = {2004, 3};
    set.warnTo = {2004, 6};
    FiscalSettings open = set;
    open.errorTo = open.warnTo = {};

    struct Case
    {
        FiscalSettings settings;
        Period period;
        PeriodVerdict expected;
    };
    const Case cases[] = {
        {FiscalSettings(), {2004, 1}, PeriodVerdict::NoFiscalYear},
        {set, {2003, 12}, PeriodVerdict::BeforeFiscalYear},
        {set, {2005, 1}, PeriodVerdict::NotAllowed},
        {set, {2004, 2}, PeriodVerdict::NotExpected},
        {set, {2004, 3}, PeriodVerdict::Fine},
        {set, {2004, 6}, PeriodVerdict::Fine},
        {set, {2004, 7}, PeriodVerdict::NotExpected},
        {open, {2004, 2}, PeriodVerdict::NotExpected},
        {open, {2030, 12}, PeriodVerdict::Fine},
    };
    for (const Case &c : cases)
        EXPECT_EQ(judgePeriod(c.settings, c.period), c.expected) << c.period.key();
}

TEST(FiscalPeriod, OnlyTheUnexpectedIsAskedAbout)
{
    FiscalSettings settings;
    settings.fiscalYear = 2004;
    settings.warnFrom = {2004, 3};
    RecordingPrompts prompts;

    requirePeriod(settings, {2004, 3}, prompts, u"GLPeriod"_s);
    EXPECT_TRUE(prompts.said.isEmpty());

    EXPECT_THROW(requirePeriod(settings, {2003, 3}, prompts, u"GLPeriod"_s), RuleError);
    EXPECT_TRUE(prompts.said.isEmpty());

    try {
        requirePeriod(settings, {2004, 1}, prompts, u"GLPeriod"_s);
        FAIL() << "Cancel goes on";
    } catch (const SilentAbort &abort) {
        EXPECT_EQ(abort.column(), u"GLPeriod"_s);
    }
    prompts.confirmed = true;
    requirePeriod(settings, {2004, 1}, prompts, u"GLPeriod"_s);
    EXPECT_EQ(prompts.said.value(1),
              u"Warning: GL Period is not within expected range \nas defined by \"Your Company\"."_s);
}
