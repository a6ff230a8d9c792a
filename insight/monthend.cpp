#include "insight/monthend.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "data/audit.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/userlocale.h"
#include "insight/texts.h"

#include <algorithm>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isSet(const Period &period) { return period.year > 0 && period.number > 0; }

// A line of today that is to have nothing waiting.
MonthEndLine nothingWaits(const TodayLine &today)
{
    return {.name = u"monthEnd"_s + today.name.mid(5), // "todayReceipts"
            .title = today.title,
            .command = InsightTexts::tr("Show"),
            .screen = today.screen,
            .report = {},
            .ask = [&today](const MonthEndSource &source) {
                return [asked = today.ask(source.books)] {
                    const TodayFigure figure = asked();
                    return MonthEndFigure{figure.text, !figure.waits, figure.detail};
                };
            }};
}

// A location that has been counted may have come to nothing by that, and one without stock has nothing to be counted.
MonthEndFigure countedOf(Engine::Statement &rows)
{
    int locations = 0;
    QStringList counted;
    QStringList missing;
    while (rows.next()) {
        ++locations;
        const QString name = rows.isNull(0) ? QString::number(rows.intAt(1)) : rows.textAt(0);
        if (rows.intAt(3) == 0)
            missing.append(name);
        else
            counted.append(InsightTexts::tr("%1 (%2 of %3 items)")
                               .arg(name, Engine::countText(rows.intAt(3)), Engine::countText(rows.intAt(2))));
    }
    QStringList detail;
    if (!missing.isEmpty())
        detail.append(InsightTexts::tr("Not counted: %1").arg(missing.join(u", "_s)));
    if (!counted.isEmpty())
        detail.append(InsightTexts::tr("Counted: %1").arg(counted.join(u", "_s)));
    return {InsightTexts::tr("%1 of %2").arg(counted.size()).arg(locations), missing.isEmpty(),
            detail.join(u"\n"_s)};
}

Engine::Answer<MonthEndFigure> countedLocations(const MonthEndSource &source)
{
    Engine::StatementPtr rows = source.books.database.connection().prepare(
        u"SELECT W.WarehouseName, L.WarehouseID, L.Items, L.Counted FROM ("
        "SELECT B.WarehouseID, COUNT(*) AS Items, SUM(CASE WHEN C.CountDate >= ? THEN 1 ELSE 0 END) AS Counted, "
        "SUM(CASE WHEN B.QtyOnHand <> 0 THEN 1 ELSE 0 END) AS InStock "
        "FROM IBalance B JOIN Item I ON I.ItemID = B.ItemID JOIN ItemType T ON T.ItemTypeID = I.ItemTypeID "
        "LEFT OUTER JOIN ICounted C ON C.ItemID = B.ItemID AND C.WarehouseID = B.WarehouseID "
        "WHERE I.Suspended = false AND T.Inventory = true GROUP BY B.WarehouseID) L "
        "LEFT OUTER JOIN Warehse W ON W.WarehouseID = L.WarehouseID "
        "WHERE L.InStock > 0 OR L.Counted > 0 ORDER BY W.WarehouseName, L.WarehouseID"_s);
    rows->bind(0, source.countedSince);
    return [rows = Engine::asked(std::move(rows))] { return countedOf(*rows); };
}

MonthEndFigure printedValue(const MonthEndSource &source)
{
    if (!source.valuePrinted.isValid())
        return {InsightTexts::tr("no"), false,
                InsightTexts::tr("The value is that of this moment: print or save it before anything of the next "
                                 "period is posted.")};
    return {Engine::userLocale().locale.toString(source.valuePrinted, QLocale::ShortFormat), true};
}

void setPeriod(Engine::Table &company, QLatin1StringView stem, const Period &period)
{
    company.set(QString(stem + "YYYY"_L1), period.year);
    company.set(QString(stem + "PP"_L1), period.number);
}

void requireEnding(const FiscalSettings &settings, const Period &ending)
{
    if (!isSet(settings.defaultPeriod))
        throw RuleError(InsightTexts::tr(
            "The organization sets no default period, so that new documents take the month of the day. There is no "
            "period to open."));
    if (settings.defaultPeriod != ending)
        throw RuleError(InsightTexts::tr("The default period is %1 by now: somebody has moved it meanwhile.")
                            .arg(shownPeriod(settings.defaultPeriod)));
}

FiscalSettings movedOn(FiscalSettings settings, const Period &ending)
{
    requireEnding(settings, ending);
    settings.defaultPeriod = periodAfter(ending);
    for (Period *warned : {&settings.warnFrom, &settings.warnTo}) {
        if (warned->key() > 0)
            *warned = settings.defaultPeriod;
    }
    const PeriodVerdict verdict = judgePeriod(settings, settings.defaultPeriod);
    if (verdict != PeriodVerdict::Fine)
        throw RuleError(
            InsightTexts::tr("Period %1 cannot be opened, as its documents would be refused: %2")
                .arg(shownPeriod(settings.defaultPeriod), periodMessage(verdict))
            + u'\n'
            + InsightTexts::tr("Up to which period documents are taken stands in Edit, Other, Organization "
                               "Setup."));
    return settings;
}

void moveOn(Engine::Table &company, const Period &ending)
{
    const FiscalSettings settings = movedOn(FiscalSettings::of(company), ending); // under its lock
    setPeriod(company, "DefaultPeriod"_L1, settings.defaultPeriod);
    if (settings.warnFrom.key() > 0)
        setPeriod(company, "WPeriodFrom"_L1, settings.warnFrom);
    if (settings.warnTo.key() > 0)
        setPeriod(company, "WPeriodTo"_L1, settings.warnTo);
}

} // namespace

EndingPeriod EndingPeriod::readFrom(Engine::Database &database, QDate today) { return ask(database, today)(); }

Engine::Answer<EndingPeriod> EndingPeriod::ask(Engine::Database &database, QDate today)
{
    return [today, row = std::shared_ptr(FiscalSettings::ask(database))] {
        const FiscalSettings settings = FiscalSettings::from(*row);
        return EndingPeriod{.period = defaultPeriod(settings, today),
                            .followsCalendar = !isSet(settings.defaultPeriod)};
    };
}

QString shownPeriod(const Period &period) { return periodText(period.number, period.year); }

QDate beginOf(Engine::Database &database, const Period &period, QDate today)
{
    const auto dayOf = [&](const QString &which, const Period &of) {
        return Engine::singleValue(
                   database, u"SELECT %1(TransDate) FROM IHist WHERE GLYear = ? AND GLPeriod = ?"_s.arg(which),
                   {of.year, of.number})
            .toDate();
    };
    if (const QDate first = dayOf(u"MIN"_s, period); first.isValid())
        return first;
    if (const QDate before = dayOf(u"MAX"_s, periodBefore(period)); before.isValid())
        return before.addDays(1);
    return {today.year(), today.month(), 1};
}

const QList<MonthEndLine> &monthEndLines()
{
    static const QList<MonthEndLine> lines = [] {
        QList<MonthEndLine> all;
        for (const TodayLine &today : todayLines())
            if (today.isForMonthEnd)
                all.append(nothingWaits(today));
        all.append({.name = u"monthEndCounted"_s,
                    .title = InsightTexts::tr("Locations counted"),
                    .command = InsightTexts::tr("Count..."),
                    .screen = u"FormEnterInventory"_s,
                    .report = {},
                    .ask = countedLocations});
        all.append({.name = u"monthEndValue"_s,
                    .title = InsightTexts::tr("Value printed"),
                    .command = InsightTexts::tr("Print..."),
                    .screen = {},
                    .report = u"TrptValueByType"_s,
                    .ask = [](const MonthEndSource &source) { return [source] { return printedValue(source); }; }});
        return all;
    }();
    return lines;
}

void requireNextPeriod(Engine::Database &database, const Period &ending)
{
    movedOn(FiscalSettings::readFrom(database), ending);
}

void openNextPeriod(Engine::Database &database, const Period &ending, const QString &user)
{
    Engine::Table company(database, u"Company"_s);
    company.open();
    company.edit();
    moveOn(company, ending);
    company.post();
    leaveNote(
        database,
        InsightTexts::tr("Period %1 opened after %2.").arg(shownPeriod(periodAfter(ending)), shownPeriod(ending)),
        database.session().today(), user);
}

} // namespace Tallymere
