#include "master/hostsync.h"

#include "base/plural.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/lockmanager.h"
#include "engine/store/namedparameters.h"
#include "engine/values/error.h"
#include "engine/values/textsize.h"
#include "master/texts.h"

#include <limits>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using Engine::EngineError;
using Engine::ErrorCode;

namespace Tallymere {

namespace {

void requireKeys(const NewRows &rows)
{
    if (rows.firstKey + rows.count - 1 > std::numeric_limits<qint32>::max())
        throw EngineError(ErrorCode::BadValue,
                          plural(rows.count, MasterTexts::tr("There is no number left for %n new record."),
                                 MasterTexts::tr("There are not enough numbers left for %n new records.")));
}

void addRow(const NewRows &rows, qint64 row, Engine::Statement &insert, Engine::Writes &writes)
{
    try {
        rows.bind(insert, row);
        writes.send(insert);
    } catch (const EngineError &error) {
        if (error.code() != ErrorCode::KeyViolation && error.code() != ErrorCode::BadValue)
            throw;
        throw EngineError(error.code(), u"%1: %2"_s.arg(rows.nameOf(row), error.text()), error.driverText());
    }
}

} // namespace

void takeTable(Engine::TableLocks &locks, Engine::Database &database, const QString &table, const QString &refusal)
{
    try {
        locks.take(table);
    } catch (const EngineError &error) {
        if (!error.isHeldByOthers())
            throw;
        const QString holder = database.connection().locks().holderOf(table);
        throw EngineError(error.code(), refusal.arg(holder), error.driverText());
    }
}

Engine::Value hostText(const Engine::Statement &row, int column, const Engine::TableLayout &layout,
                       QStringView field)
{
    if (row.isNull(column))
        return {};
    return Engine::firstCharacters(row.textAt(column), layout.field(field)->size);
}

void addRows(Engine::Database &database, const NewRows &rows, Progress &progress)
{
    if (rows.count == 0)
        return;
    requireKeys(rows);
    const Engine::BulkWriting room(database);
    const Engine::StatementPtr insert = database.connection().prepare(Engine::positional(rows.statement).sql);
    Engine::GroupedWrites writes(database);
    progress.start(static_cast<int>(rows.count));
    const auto finished = qScopeGuard([&progress] { progress.finish(); });
    for (qint64 row = 0; row < rows.count; ++row) {
        writes.apply([&rows, row, &insert](Engine::Writes &sink) { addRow(rows, row, *insert, sink); });
        progress.step();
    }
    writes.finish();
}

} // namespace Tallymere
