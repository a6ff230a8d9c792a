#pragma once

#include "data/fiscalperiod.h"
#include "insight/today.h"

#include <functional>
#include <QDateTime>

namespace Tallymere {

// The period that ends, as the organization has it by now.
struct EndingPeriod
{
    Period period;
    // The organization sets none, so that new documents take month and year of the day: there is nothing to open.
    bool followsCalendar = false;

    static EndingPeriod readFrom(Engine::Database &database, QDate today);
    static Engine::Answer<EndingPeriod> ask(Engine::Database &database, QDate today);
    Period next() const { return periodAfter(period); }
};

// "3/2026"
QString shownPeriod(const Period &period);

// Since when a period lasts: the earliest day of what has been posted into it, or else the day behind the latest of the period
// before, or else the first of the month of today. Periods need not be months of the calendar.
QDate beginOf(Engine::Database &database, const Period &period, QDate today);

// What the list is about.
struct MonthEndSource
{
    TodaySource books;
    QDate countedSince; // on that day or later a location is to have been counted
    QDateTime
        valuePrinted; // when the value of the stock was printed or saved for the period; null: it has not been
};

struct MonthEndFigure
{
    QString text; // "2 of 3"
    bool isMet = false;
    QString detail = {}; // what is missing, or whose it is
};

// Something that is to be done before a period is left behind, and what shows more of it.
struct MonthEndLine
{
    QString name; // of what shows the line: "monthEndReceipts"
    QString title;
    QString command; // what its button says: "Show"
    QString screen; // component name of what that opens
    QString report; // or a report to print
    std::function<Engine::Answer<MonthEndFigure>(const MonthEndSource &)> ask; // a short statement or two
};

// The documents of each kind that wait to be posted: 0. Balances below zero: 0. The locations that have stock: each counted
// since the period began. The value of the stock: printed.
const QList<MonthEndLine> &monthEndLines();

// Makes the next period the one that new documents take, and the one that is expected, as far as a range of expected ones
// is set. What is allowed stays as it is. Written under the organization's lock. Throws RuleError when the period that ends is not
// that any more, when the organization sets none, or when documents of the next one would be refused; EngineError when somebody
// else is editing the organization. A note tells who has done it.
void openNextPeriod(Engine::Database &database, const Period &ending, const QString &user);
// Throws what would stop that as the organization stands now.
void requireNextPeriod(Engine::Database &database, const Period &ending);

} // namespace Tallymere
