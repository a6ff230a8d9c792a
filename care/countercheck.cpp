#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "data/numbercounter.h"
#include "engine/records/query.h"
#include "engine/store/dialect.h"
#include "master/masterkinds.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

struct Counter
{
    QString table; // the control table
    QString field; // in it
    QString counted; // the field that it counts
    QStringList tables; // in which that stands
};

// The counter goes on above what the tables hold.
void moveOn(Engine::Database &database, const Counter &counter, qint64 next)
{
    takeNumbers(database, counter.table, [&](CounterRow &row) { row.set(counter.field, next); });
}

void checkKey(Inspection &inspection, const Counter &counter)
{
    const auto highestOf = [&](const QString &table, const QString &field) {
        return Engine::singleValue(inspection.database(), u"SELECT MAX(%1) FROM %2"_s.arg(field, table));
    };
    const Engine::Value next = highestOf(counter.table, counter.field);
    if (next.isNull())
        return; // nothing has been counted yet
    qint64 highest = 0;
    for (const QString &table : counter.tables)
        highest = std::max(highest, highestOf(table, counter.counted).toInt64());
    if (next.toInt64() > highest)
        return;
    inspection.found({Layouts::titleOf(counter.table),
                      CareTexts::tr("The counter %1 stands at %2, and %3 goes up to %4.")
                          .arg(counter.field, next.toText(), counter.counted, QString::number(highest)),
                      CareTexts::tr("No figure is wrong for it; new records look for a free key."),
                      CareTexts::tr("A repair lets it go on above."),
                      [counter, highest](Engine::Database &database) { moveOn(database, counter, highest + 1); }});
}

} // namespace

void checkCounters(Inspection &inspection)
{
    for (const MasterKind *kind : MasterKinds::all())
        if (!kind->record.keyCounter.isEmpty())
            checkKey(inspection,
                     {kind->record.counterTable, kind->record.keyCounter, kind->keyField, kind->keyTables()});
    for (const DocumentKind *kind : DocumentKinds::all())
        checkKey(inspection,
                 {kind->entry.counters.table, kind->entry.counters.key, kind->keyField, kind->keyTables()});
}

} // namespace Tallymere
