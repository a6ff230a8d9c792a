#pragma once

#include "base/prompts.h"
#include "engine/records/dataset.h"
#include "engine/store/driver.h"

#include <QDate>
#include <QString>

// The fiscal calendar of the organization, and the rules by which documents take and check their period.

namespace Tallymere {

struct Period
{
    int year = 0; // four digits
    int number = 0; // 1 to 12

    int key() const { return year * 100 + number; } // as periods are compared
    friend bool operator==(const Period &, const Period &) = default;
};

// A year has twelve.
Period periodAfter(const Period &period);
Period periodBefore(const Period &period);

// What the Company row says about periods. Empty fields are 0 and mean: not set.
struct FiscalSettings
{
    int fiscalYear = 0;
    Period defaultPeriod; // its two halves are set independently
    Period warnFrom, warnTo; // an upper bound with key 0 is open
    Period errorFrom, errorTo;

    static FiscalSettings of(const Engine::DataSet &company);
    static FiscalSettings readFrom(Engine::Database &database); // as stored by now
    // The same in two steps, so that it travels with what else is asked.
    static Engine::StatementPtr ask(Engine::Database &database);
    static FiscalSettings from(Engine::Statement &asked);
};

// For a new document, and what filters and reports begin with: each half from the default period when that is above zero,
// else from the date.
Period defaultPeriod(const FiscalSettings &settings, QDate date);
Period defaultPeriod(Engine::Database &database, QDate date); // by the settings as stored now

enum class PeriodVerdict {
    Fine,
    NoFiscalYear, // the organization has not been set up
    BeforeFiscalYear,
    NotAllowed, // outside the error range
    NotExpected, // outside the warn range: the user may insist
};

PeriodVerdict judgePeriod(const FiscalSettings &settings, const Period &period);

// What is said to the user; empty for Fine.
QString periodMessage(PeriodVerdict verdict);

// Before a document is saved: throws RuleError with the column for a period that is refused; asks about one that is
// not expected, and throws SilentAbort with the column when the answer is Cancel.
void requirePeriod(const FiscalSettings &settings, const Period &period, Prompts &prompts, const QString &column);

} // namespace Tallymere
