#include "insight/today.h"

#include "base/formats.h"
#include "data/fields.h"
#include "data/fiscalperiod.h"
#include "data/lastbackup.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "insight/texts.h"
#include "transactions/books/totalsview.h"
#include "transactions/documents/begundocument.h"
#include "transactions/documents/documentkinds.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString named(const QString &name, qint64 count) { return u"%1 %2"_s.arg(name, QString::number(count)); }

// The sum of a statement that counts under names, and how much of it each name has; without a name at the end.
TodayFigure counted(Engine::Statement &rows)
{
    qint64 sum = 0;
    qint64 nameless = 0;
    QStringList parts;
    while (rows.next()) {
        const QString name = rows.textAt(0);
        const qint64 count = rows.intAt(1);
        sum += count;
        if (name.isEmpty())
            nameless += count;
        else
            parts.append(named(name, count));
    }
    if (nameless > 0 && !parts.isEmpty())
        parts.append(named(InsightTexts::tr("not known"), nameless));
    return {QString::number(sum), sum > 0, parts.join(u", "_s)};
}

// As many as a posting would take, by who has saved them last.
Engine::Answer<TodayFigure> unposted(const TodaySource &source, const DocumentKind &kind)
{
    Engine::StatementPtr rows = source.database.connection().prepare(
        u"SELECT S.SavedBy, COUNT(*) FROM (SELECT I.%1 AS DocumentID FROM %2) W "
        "LEFT OUTER JOIN IDocSaved S ON S.DocumentID = W.DocumentID AND S.TransType = ? "
        "GROUP BY S.SavedBy ORDER BY S.SavedBy"_s.arg(kind.keyField, kind.posting.unposted));
    rows->bindInt(0, static_cast<int>(kind.posting.transType));
    return [rows = Engine::asked(std::move(rows))] {
        TodayFigure figure = counted(*rows);
        if (!figure.detail.isEmpty())
            figure.detail = InsightTexts::tr("Last saved by: %1").arg(figure.detail);
        return figure;
    };
}

Engine::Answer<TodayFigure> belowZero(const TodaySource &source)
{
    Engine::StatementPtr rows = source.database.connection().prepare(
        u"SELECT W.WarehouseName, COUNT(*) FROM IBalance B LEFT OUTER JOIN Warehse W ON W.WarehouseID = "
        u"B.WarehouseID "
        "WHERE %1 GROUP BY W.WarehouseName ORDER BY W.WarehouseName"_s.arg(TotalsView::belowZero()));
    return [rows = Engine::asked(std::move(rows))] { return counted(*rows); };
}

// Documents of the user whose program ended before they were saved.
TodayFigure leftDocuments(const TodaySource &source)
{
    int sum = 0;
    QStringList parts;
    QString screen;
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const int count = BegunDocument::countLeft(source.database, *kind);
        sum += count;
        if (count > 0)
            parts.append(named(kind->entry.newTitle, count));
        if (count > 0 && screen.isEmpty())
            screen = kind->list.screen;
    }
    const QString detail = sum > 0
        ? InsightTexts::tr("%1. New in the list asks whether to go on.").arg(parts.join(u", "_s))
        : QString();
    return {QString::number(sum), sum > 0, detail, screen};
}

TodayFigure begunCounts(const TodaySource &source)
{
    const QList<int> locations =
        CountDrafts(CountDrafts::nameOf(source.database), source.user, source.draftFolder).locations();
    const Engine::StatementPtr row =
        source.database.connection().prepare(u"SELECT WarehouseName FROM Warehse WHERE WarehouseID = ?"_s);
    QStringList names;
    for (const int location : locations) {
        row->bindInt(0, location);
        if (row->next())
            names.append(row->textAt(0));
        row->reset();
    }
    names.sort();
    return {QString::number(locations.size()), !locations.isEmpty(), names.join(u", "_s)};
}

Engine::Answer<TodayFigure> openPeriod(const TodaySource &source)
{
    const QDate today = source.database.session().today();
    return [today, row = std::shared_ptr(FiscalSettings::ask(source.database))] {
        const FiscalSettings settings = FiscalSettings::from(*row);
        const Period period = defaultPeriod(settings, today);
        return TodayFigure{periodText(period.number, period.year), false,
                           periodMessage(judgePeriod(settings, period))};
    };
}

QString dayText(QDate day, QDate today)
{
    if (day == today)
        return InsightTexts::tr("today");
    return day == today.addDays(-1) ? InsightTexts::tr("yesterday") : dateText(day);
}

TodayFigure backup(const TodaySource &source)
{
    const LastBackup last = lastBackup(source.database);
    if (!last.made.isValid())
        return {InsightTexts::tr("never"), false, InsightTexts::tr("No backup of this database is known.")};
    const QString made = u"%1, %2"_s.arg(dateText(last.made.date()), last.made.toString(u"HH:mm"_s));
    return {dayText(last.made.date(), source.database.session().today()), false,
            last.by.isEmpty() ? made : InsightTexts::tr("%1, by %2").arg(made, last.by)};
}

// What needs more than a statement, and is read when it is taken.
std::function<Engine::Answer<TodayFigure>(const TodaySource &)> later(TodayFigure (*read)(const TodaySource &))
{
    return [read](const TodaySource &source) { return [read, source] { return read(source); }; };
}

QString lineName(const QString &what) { return u"today"_s + what.left(1).toUpper() + what.mid(1); }

} // namespace

const QList<TodayLine> &todayLines()
{
    static const QList<TodayLine> lines = [] {
        QList<TodayLine> all;
        for (const DocumentKind *kind : DocumentKinds::all()) {
            all.append({.name = lineName(kind->name),
                        .title = kind->posting.waiting,
                        .screen = kind->list.screen,
                        .ask = [kind](const TodaySource &source) { return unposted(source, *kind); },
                        .isForMonthEnd = true});
        }
        all.append({.name = u"todayBelowZero"_s,
                    .title = InsightTexts::tr("Below zero"),
                    .screen = u"frmInvTotals"_s,
                    .ask = belowZero,
                    .tone = TodayLine::Tone::Alarm,
                    .isForMonthEnd = true});
        all.append({.name = u"todayLeft"_s,
                    .title = InsightTexts::tr("Begun, not saved"),
                    .screen = DocumentKinds::all().first()->list.screen,
                    .ask = later(leftDocuments)});
        all.append({.name = u"todayCounts"_s,
                    .title = InsightTexts::tr("Counts begun"),
                    .screen = u"FormEnterInventory"_s,
                    .ask = later(begunCounts)});
        all.append({.name = u"todayPeriod"_s,
                    .title = InsightTexts::tr("Period"),
                    .screen = u"frmCompany"_s,
                    .ask = openPeriod});
        all.append({.name = u"todayBackup"_s,
                    .title = InsightTexts::tr("Backup"),
                    .screen = u"frmBackUp"_s,
                    .ask = later(backup)});
        return all;
    }();
    return lines;
}

} // namespace Tallymere
