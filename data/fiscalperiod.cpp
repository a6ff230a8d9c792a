#include "data/fiscalperiod.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "data/texts.h"
#include "engine/store/database.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

Period periodOf(const Engine::DataSet &company, QLatin1StringView stem)
{
    return {company.integer(QString(stem + "YYYY"_L1)), company.integer(QString(stem + "PP"_L1))};
}

bool outside(const Period &period, const Period &from, const Period &to)
{
    return period.key() < from.key() || (to.key() > 0 && period.key() > to.key());
}

constexpr int periodsOfAYear = 12;

} // namespace

Period periodAfter(const Period &period)
{
    return period.number < periodsOfAYear ? Period{period.year, period.number + 1} : Period{period.year + 1, 1};
}

Period periodBefore(const Period &period)
{
    return period.number > 1 ? Period{period.year, period.number - 1} : Period{period.year - 1, periodsOfAYear};
}

FiscalSettings FiscalSettings::of(const Engine::DataSet &company)
{
    return {
        .fiscalYear = company.integer(Fields::FiscalYear),
        .defaultPeriod = periodOf(company, "DefaultPeriod"_L1),
        .warnFrom = periodOf(company, "WPeriodFrom"_L1),
        .warnTo = periodOf(company, "WPeriodTo"_L1),
        .errorFrom = periodOf(company, "EPeriodFrom"_L1),
        .errorTo = periodOf(company, "EPeriodTo"_L1),
    };
}

FiscalSettings FiscalSettings::readFrom(Engine::Database &database) { return from(*ask(database)); }

Engine::StatementPtr FiscalSettings::ask(Engine::Database &database)
{
    Engine::StatementPtr row = database.connection().prepare(
        u"SELECT FiscalYear, DefaultPeriodYYYY, DefaultPeriodPP, WPeriodFromYYYY, WPeriodFromPP, WPeriodToYYYY, "
        "WPeriodToPP, EPeriodFromYYYY, EPeriodFromPP, EPeriodToYYYY, EPeriodToPP FROM Company ORDER BY CompanyNo "
        "LIMIT 1"_s);
    row->ask();
    return row;
}

FiscalSettings FiscalSettings::from(Engine::Statement &asked)
{
    if (!asked.next())
        return {};
    const auto number = [&asked](int column) { return static_cast<int>(asked.intAt(column)); };
    const auto period = [&number](int column) { return Period{number(column), number(column + 1)}; };
    return {.fiscalYear = number(0),
            .defaultPeriod = period(1),
            .warnFrom = period(3),
            .warnTo = period(5),
            .errorFrom = period(7),
            .errorTo = period(9)};
}

Period defaultPeriod(const FiscalSettings &settings, QDate date)
{
    const Period &preset = settings.defaultPeriod;
    return {preset.year > 0 ? preset.year : date.year(), preset.number > 0 ? preset.number : date.month()};
}

Period defaultPeriod(Engine::Database &database, QDate date)
{
    return defaultPeriod(FiscalSettings::readFrom(database), date);
}

PeriodVerdict judgePeriod(const FiscalSettings &settings, const Period &period)
{
    if (settings.fiscalYear == 0)
        return PeriodVerdict::NoFiscalYear;
    if (period.year < settings.fiscalYear)
        return PeriodVerdict::BeforeFiscalYear;
    if (outside(period, settings.errorFrom, settings.errorTo))
        return PeriodVerdict::NotAllowed;
    if (outside(period, settings.warnFrom, settings.warnTo))
        return PeriodVerdict::NotExpected;
    return PeriodVerdict::Fine;
}

QString periodMessage(PeriodVerdict verdict)
{
    switch (verdict) {
    case PeriodVerdict::Fine:
        break;
    case PeriodVerdict::NoFiscalYear:
        return DataTexts::tr("Current fiscal year is not yet defined...\nSee \"Your Company\"");
    case PeriodVerdict::BeforeFiscalYear:
        return DataTexts::tr("GL Period is prior to current fiscal year \nas defined by \"Your Company\"");
    case PeriodVerdict::NotAllowed:
        return DataTexts::tr("GL Period is not within allowed range \nas defined by \"Your Company\"");
    case PeriodVerdict::NotExpected:
        return DataTexts::tr("GL Period is not within expected range \nas defined by \"Your Company\".");
    }
    return {};
}

void requirePeriod(const FiscalSettings &settings, const Period &period, Prompts &prompts, const QString &column)
{
    const PeriodVerdict verdict = judgePeriod(settings, period);
    if (verdict == PeriodVerdict::Fine)
        return;
    if (verdict != PeriodVerdict::NotExpected)
        throw RuleError(periodMessage(verdict), column);
    if (!prompts.confirm(Question::Warning, periodMessage(verdict)))
        throw SilentAbort(column);
}

} // namespace Tallymere
