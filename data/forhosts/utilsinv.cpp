#include "data/forhosts/utilsinv.h"

#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "base/trace.h"
#include "data/tableactions.h"
#include "data/texts.h"
#include "engine/store/attempts.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using Engine::EngineError;
using Engine::ErrorCode;

namespace Tallymere {

namespace {

QString unexpectedError(const EngineError &error)
{
    return DataTexts::tr("Unknown or unexpected database engine error #%1").arg(static_cast<int>(error.code()))
        + u'\n' + error.text();
}

[[noreturn]] void refuseOpening(const Engine::TableReader &table, const EngineError &error)
{
    if (error.code() == ErrorCode::TableInUse)
        throw EngineError(
            error.code(),
            DataTexts::tr("%1 table. Another user has the table open in exclusive mode.").arg(table.name()),
            error.text());
    throw EngineError(error.code(), table.name() + u": "_s + unexpectedError(error), error.driverText());
}

// A table without a row has nothing to lock, and two users would each give it one: the first row is made under the
// table's lock.
void lockRow(Engine::Table &counter, std::optional<Engine::TableLocks> &whole)
{
    if (counter.isEmpty()) {
        if (!whole)
            whole.emplace(counter.database()).take(counter.name());
        counter.refresh();
        if (!counter.isEmpty())
            whole.reset(); // somebody else has made it meanwhile
    }
    counter.edit();
}

void processSomeEvents()
{
    constexpr int mostRounds = 20;
    for (int rounds = QRandomGenerator::global()->bounded(mostRounds); rounds > 0; --rounds)
        QCoreApplication::processEvents();
}

bool lockedForEdit(Engine::Table &counter, std::optional<Engine::TableLocks> &whole)
{
    constexpr int mostAttempts = 100;
    Engine::Attempts attempts(mostAttempts, processSomeEvents);
    do {
        try {
            lockRow(counter, whole);
            return true;
        } catch (const EngineError &) {
            qCDebug(trace) << "in the unique ID EDBEngineError exception block";
        }
    } while (attempts.again());
    return false;
}

QString cutBefore(const QString &piece, QChar marker)
{
    const qsizetype at = piece.size() > 1 ? piece.indexOf(marker) : -1;
    return at < 0 ? piece : piece.left(at).trimmed();
}

} // namespace

int getUniqueID(Engine::Table &counter, const QString &field)
{
    qCDebug(trace) << "Entering GetUniqueID";
    std::optional<Engine::TableLocks> whole;
    openTable(counter);
    const auto closing = qScopeGuard([&] {
        counter.close();
        qCDebug(trace) << "Exiting GetUniqueID";
    });

    if (!lockedForEdit(counter, whole)) {
        qCDebug(trace) << "The ID record could not be locked!";
        throw RuleError(DataTexts::tr("Cannot get next unique number. (btGetUniqueNumber)"));
    }
    const qint64 last = counter.value(field).toInt64();
    qCDebug(trace) << "LastNumberTbl is in Edit Mode" << field << last;
    counter.set(field, last + 1);
    counter.post();
    counter.flush();
    return counter.integer(field);
}

bool openTable(Engine::TableReader &table)
{
    const auto mend = [&table] { repairTable(table.database(), table.name()); };
    table.onDamage(mend);
    for (bool isMended = false; !table.isOpen(); isMended = true) {
        try {
            table.open();
        } catch (const EngineError &error) {
            if (isMended || error.code() != ErrorCode::Corrupt)
                refuseOpening(table, error);
            table.onDamage({});
            mend();
        }
    }
    return true;
}

qint64 repairTable(Engine::Database &database, const QString &table)
{
    qCDebug(trace) << "tbl.RepairTable" << table;
    try {
        const qint64 lost = database.repairTable(table);
        qCDebug(trace) << lost << "rows lost";
        return lost;
    } catch (const EngineError &error) {
        throw EngineError(
            error.code(),
            DataTexts::tr("The table %1 is damaged and could not be repaired: %2\n"
                          "Have everybody close the program and try again. If that does not help, restore the last "
                          "backup.")
                .arg(database.session().titleOf(table), error.text()),
            error.driverText());
    }
}

bool openQuery(Engine::Query &query)
{
    try {
        query.open();
    } catch (const EngineError &error) {
        throw EngineError(error.code(), u"Query: "_s + unexpectedError(error), error.driverText());
    }
    return true;
}

QString getSQLString(Engine::Query &query, const QString &name)
{
    qCDebug(trace) << "About to open QueryGetSQLStatement..." << name;
    query.close();
    query.setParameter(u"Query_Name", name);
    query.open();
    QString statement = query.value(u"Query_Lines").toText();
    query.close();
    return statement;
}

void dmTables(const QString &action, TableOwner &dataModule) { tables(action, dataModule.ownedTables()); }

bool isRecordLocked(const Engine::TableReader &) { return false; }

QString extractIDFromString(const QString &text)
{
    const QString piece = text.mid(text.indexOf(u'[') + 1, 4).trimmed();
    return cutBefore(cutBefore(piece, u'~'), u']');
}

QString before(const QString &marker, const QString &text)
{
    const qsizetype at = marker.isEmpty() ? -1 : text.indexOf(marker);
    return at < 0 ? text : text.left(at);
}

QString getDecimalPortionAsString(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 ? QString() : number.mid(point, 4).trimmed();
}

QString getIntegerPortionAsString(const QString &number)
{
    return QString::number(getIntegerPortionOfStringAsInteger(number));
}

int getIntegerPortionOfStringAsInteger(const QString &number) { return before(u"."_s, number).trimmed().toInt(); }

double strToFloatDef(const QString &text, double) { return numberFromText(text); }

quint32 checkListGetBitField(const QList<bool> &checks)
{
    quint32 bits = 0;
    for (qsizetype i = 0; i < checks.size(); ++i) {
        if (checks[i])
            bits |= 1u << (i % 32);
    }
    return bits;
}

void checkListSetChecks(QList<bool> &checks, quint32 bits)
{
    for (qsizetype i = 0; i < checks.size(); ++i)
        checks[i] = (bits >> (i % 32) & 1u) != 0;
}

} // namespace Tallymere
