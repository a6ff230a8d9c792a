#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "data/numbercounter.h"
#include "engine/records/query.h"
#include "engine/store/dialect.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"

#include <algorithm>

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

// Of a server, which counts these by itself, apart from the table.
void checkOwnKeys(Inspection &inspection, const Engine::TableLayout &table)
{
    const auto field = std::ranges::find(table.fields, Engine::FieldType::AutoInc, &Engine::FieldDef::type);
    if (field == table.fields.end())
        return;
    const Engine::Dialect &dialect = inspection.store().dialect();
    const QString given = dialect.lastAutoIncrement(table.name, field->name);
    if (given.isEmpty())
        return;
    const qint64 last = Engine::singleValue(inspection.database(), given).toInt64();
    const qint64 highest =
        Engine::singleValue(inspection.database(),
                            u"SELECT MAX(%1) FROM %2"_s.arg(dialect.name(field->name), dialect.name(table.name)))
            .toInt64();
    if (last >= highest)
        return;
    const bool isHistory = table.name == Layouts::iHist().name;
    const QString moveOn = dialect.passAutoIncrement(table.name, field->name);
    inspection.found(
        {Layouts::titleOf(table.name),
         CareTexts::tr("The server has given %1 up to %2, and the table goes up to %3.")
             .arg(field->name, QString::number(last), QString::number(highest)),
         isHistory ? CareTexts::tr("A document that is posted now lacks its history.")
                   : CareTexts::tr("New rows are refused until it has come to that."),
         CareTexts::tr("A repair lets it go on above."),
         [moveOn, highest](Engine::Database &database) { Engine::singleValue(database, moveOn, {highest}); }});
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
    for (const Engine::TableLayout *table : Layouts::applied())
        checkOwnKeys(inspection, *table);
}

} // namespace Tallymere
