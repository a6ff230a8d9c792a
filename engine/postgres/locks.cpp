#include "engine/postgres/locks.h"

#include "engine/postgres/connection.h"
#include "engine/store/platform.h"
#include "engine/store/sqlcondition.h"
#include "engine/values/error.h"
#include "engine/values/stablenumber.h"

#include <limits>
#include <QCoreApplication>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

const QString lockAlone = u"SELECT pg_try_advisory_lock(?, ?)"_s;
const QString lockShared = u"SELECT pg_try_advisory_lock_shared(?, ?)"_s;
const QString unlockAlone = u"SELECT pg_advisory_unlock(?, ?)"_s;
const QString unlockShared = u"SELECT pg_advisory_unlock_shared(?, ?)"_s;
// Both or none, in one round trip: the share of the table lock, then the record. Parameters: the table's number
// twice around the record's two, as each "?" is a parameter of its own.
const QString lockRecord = u"SELECT CASE WHEN NOT pg_try_advisory_lock_shared(?, 0) THEN false "
                           "WHEN pg_try_advisory_lock(?, ?) THEN pg_try_advisory_lock_shared(?, ?) IS NOT NULL "
                           "ELSE NOT pg_advisory_unlock_shared(?, 0) END"_s;
const QString unlockRecordText =
    u"SELECT pg_advisory_unlock(?, ?), pg_advisory_unlock_shared(?, 0), pg_advisory_unlock_shared(?, ?)"_s;
// A failure where the table is locked, as nothing else keeps what is sent behind it from being done.
const QString shareTable = u"SELECT 1 / CASE WHEN pg_try_advisory_xact_lock_shared(?, 0) THEN 1 ELSE 0 END"_s;
const QString lockTable = u"SELECT CASE WHEN pg_try_advisory_lock(?, 0) "
                          "THEN pg_try_advisory_lock_shared(?, ?) IS NOT NULL ELSE false END"_s;
const QString unlockTableText = u"SELECT pg_advisory_unlock(?, 0), pg_advisory_unlock_shared(?, ?)"_s;

// Those who hold a table, or records of it, called "a", with the time. Whoever waits for the table asks for all of them,
// who waits for a record asks for one.
const QString advisoryHolders =
    u"SELECT a.application_name, a.usename, coalesce(host(a.client_addr), ''), CAST(since.seconds AS text) "
    "FROM (SELECT pid, mode, CAST(classid AS bigint) AS class, CAST(objid AS bigint) AS number "
    "FROM pg_locks WHERE locktype = 'advisory' AND granted AND objsubid = 2 AND pid <> pg_backend_pid() "
    "AND database = (SELECT oid FROM pg_database WHERE datname = current_database())) AS held "
    "JOIN pg_stat_activity a USING (pid) "
    "LEFT JOIN LATERAL (SELECT min(CAST(objid AS bigint)) AS seconds FROM pg_locks t WHERE t.pid = held.pid "
    "AND locktype = 'advisory' AND objsubid = 2 AND CAST(classid AS bigint) = "
    "CASE WHEN held.class = CAST(? AS bigint) THEN CAST(? AS bigint) ELSE held.number # CAST(? AS bigint) END) AS "
    "since "
    "ON true "
    "WHERE (held.class = CAST(? AS bigint) AND held.mode = 'ExclusiveLock') OR (held.class = CAST(? AS bigint)%1) "
    "ORDER BY held.class = CAST(? AS bigint) DESC, since.seconds LIMIT 1"_s;
const QString foreignWriters =
    u"SELECT a.application_name, a.usename, coalesce(host(a.client_addr), ''), "
    "CAST(CAST(extract(epoch FROM a.xact_start) AS bigint) AS text) "
    "FROM pg_locks l JOIN pg_stat_activity a USING (pid) WHERE l.locktype = 'relation' AND l.granted "
    "AND l.pid <> pg_backend_pid() "
    "AND l.database = (SELECT oid FROM pg_database WHERE datname = current_database()) "
    "AND l.relation IN (SELECT oid FROM pg_class WHERE relname = ?) "
    // Readers and those who clean up are in nobody's way; the server's own work gives way to whoever waits for it.
    "AND l.mode NOT IN ('AccessShareLock', 'ShareUpdateExclusiveLock') AND a.backend_type = 'client backend'"_s;

// The server's numbers for locks have 32 bits.
qint64 lockNumber(quint64 number)
{
    constexpr int half = 32;
    return static_cast<qint32>(number >> half);
}

qint64 openNumber(const QString &table) { return lockNumber(stableNumber("open " + table.toUtf8())); }
qint64 tableNumber(const QString &table) { return lockNumber(stableNumber("table " + table.toUtf8())); }
qint64 recordNumber(const QString &table) { return lockNumber(stableNumber("record " + table.toUtf8())); }

// For the times. That of a record is made of the record's place, so that a statement can find it.
qint64 tableTime(const QString &table) { return lockNumber(stableNumber("table since " + table.toUtf8())); }
qint64 recordTime(const QString &table, qint64 place)
{
    return static_cast<qint32>(place ^ lockNumber(stableNumber("record since " + table.toUtf8())));
}
qint64 timeNumber(qint64 seconds) { return static_cast<qint32>(seconds); }

// As pg_locks shows a number.
qint64 shown(qint64 number) { return static_cast<quint32>(number); }

} // namespace

// "anna@kitchen-2/4711" of this system's own sessions, "postgres (psql)" of others.
LockOwner sessionOwner(const char *applicationName, const char *role, const char *address, const char *since)
{
    const QDateTime moment = *since ? QDateTime::fromSecsSinceEpoch(QByteArray(since).toLongLong()) : QDateTime();
    const QString name = QString::fromUtf8(applicationName);
    const qsizetype at = name.lastIndexOf(u'@');
    const qsizetype slash = name.lastIndexOf(u'/');
    if (at >= 0 && slash >= at)
        return {name.left(at), name.mid(at + 1, slash - at - 1), moment};
    const QString user = QString::fromUtf8(role);
    return {name.isEmpty() ? user : u"%1 (%2)"_s.arg(user, name), QString::fromUtf8(address), moment};
}

QString PostgresLocks::applicationName(const QString &user)
{
    const QString name = user.isEmpty() ? systemUserName() : user;
    return u"%1@%2/%3"_s.arg(name.left(25), QSysInfo::machineHostName().left(25))
        .arg(QCoreApplication::applicationPid());
}

StatementPtr PostgresLocks::bound(const QString &sql, const QList<qint64> &numbers)
{
    StatementPtr statement = m_connection.prepare(sql);
    for (qsizetype i = 0; i < numbers.size(); ++i)
        statement->bindInt(static_cast<int>(i), numbers[i]);
    return statement;
}

bool PostgresLocks::ask(const QString &sql, const QList<qint64> &numbers, const Along &along)
{
    const StatementPtr statement = bound(sql, numbers);
    if (along)
        askWith(*statement, along);
    return statement->next() && statement->intAt(0) == 1;
}

// Over a new connection what goes along would be answered before the lock, and the lock would be held by none.
void PostgresLocks::askWith(Statement &lock, const Along &along)
{
    for (;;) {
        const int losses = m_losses;
        lock.ask();
        if (m_connection.isLost())
            return;
        along();
        if (m_losses == losses)
            return;
        lock.reset();
    }
}

void PostgresLocks::release(const QString &sql, const QList<qint64> &numbers) noexcept
{
    if (m_connection.isLost())
        return; // the locks went with the session
    if (m_connection.isTransactionFailed()) {
        m_deferred.append({sql, numbers});
        return;
    }
    try {
        if (m_connection.inTransaction())
            ask(sql, numbers);
        else
            m_connection.tell(*bound(sql, numbers));
    } catch (const EngineError &) {
        if (!m_connection.isLost())
            m_deferred.append({sql, numbers});
    }
}

void PostgresLocks::releaseDeferred() noexcept
{
    const QList<Deferred> deferred = std::move(m_deferred);
    m_deferred.clear();
    for (const Deferred &entry : deferred)
        release(entry.sql, entry.numbers);
}

bool PostgresLocks::mayReconnect() const
{
    return std::none_of(everything().begin(), everything().end(),
                        [](const auto &entry) { return entry.second.isReliedOn(); });
}

bool PostgresLocks::areLost() const { return m_connection.isLost(); }

void PostgresLocks::reconnected()
{
    ++m_losses;
    loseRecords();
    m_deferred.clear();
    m_connection.forgetLayouts();
    m_coveredRecords.clear();
    for (const auto &[table, held] : everything()) {
        if (held.shared > 0)
            ask(lockShared, {openNumber(table), 0});
    }
}

bool PostgresLocks::isOpenShared(const QString &table) const
{
    const auto held = everything().find(table);
    return held != everything().end() && held->second.shared > 0 && held->second.exclusive == 0;
}

bool PostgresLocks::changeOpen(const QString &table, OpenMode from, OpenMode to, bool isToBeDescribed)
{
    const QList<qint64> numbers{openNumber(table), 0};
    m_connection.forgetLayout(table);
    Along describing;
    if (isToBeDescribed)
        describing = [this, &table] { m_connection.askLayout(table); };
    if (from == OpenMode::Exclusive && m_connection.isLost())
        return true; // open tables are taken again with the next connection
    if (to != OpenMode::None && !ask(to == OpenMode::Shared ? lockShared : lockAlone, numbers, describing)) {
        m_connection.forgetLayout(table);
        return false;
    }
    if (from != OpenMode::None)
        release(from == OpenMode::Shared ? unlockShared : unlockAlone, numbers);
    return true;
}

QStringList PostgresLocks::acquireShared(const QStringList &tables)
{
    std::map<QString, StatementPtr> locks;
    const auto lockOf = [&](const QString &table) -> Statement & {
        return *(locks[table] = bound(lockShared, {openNumber(table), 0}));
    };
    for (const QString &table : tables)
        m_connection.forgetLayout(table);
    askWith(lockOf(tables.constFirst()), [&] {
        m_connection.askLayout(tables.constFirst());
        for (const QString &table : tables.mid(1)) {
            lockOf(table).ask();
            m_connection.askLayout(table);
        }
    });
    QStringList acquired;
    for (const auto &[table, lock] : locks) {
        if (lock->next() && lock->intAt(0) == 1)
            acquired << table;
        else
            m_connection.forgetLayout(table);
    }
    return acquired;
}

qint64 PostgresLocks::placeOf(const QString &, const QList<qint64> &key) const
{
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    if (key.size() == 1 && key.first() >= least && key.first() <= most)
        return key.first();
    return lockNumber(stableNumber(key));
}

// A table that nobody else has open has no records that others edit.
bool PostgresLocks::acquireRecord(const QString &table, const Place &place)
{
    const auto held = everything().find(table);
    if (held != everything().end() && held->second.exclusive > 0) {
        m_coveredRecords.insert({table, place.record});
        return true;
    }
    return ask(lockRecord,
               {tableNumber(table), recordNumber(table), place.record, recordTime(table, place.record),
                timeNumber(place.since), tableNumber(table)},
               place.along);
}

void PostgresLocks::releaseRecord(const QString &table, const Place &place) noexcept
{
    if (m_coveredRecords.erase({table, place.record}) > 0)
        return;
    release(unlockRecordText,
            {recordNumber(table), place.record, tableNumber(table), recordTime(table, place.record),
             timeNumber(place.since)});
}

StatementPtr PostgresLocks::askShare(const QString &table)
{
    StatementPtr statement = bound(shareTable, {tableNumber(table.toLower())});
    statement->ask();
    return statement;
}

bool PostgresLocks::acquireTable(const QString &table, qint64 since)
{
    const StatementPtr writers = m_connection.prepare("SELECT EXISTS ("_L1 + foreignWriters + u')');
    writers->bindText(0, table);
    if (!ask(lockTable, {tableNumber(table), tableTime(table), timeNumber(since)}, [&] { writers->ask(); }))
        return false;
    // Not everybody who writes to the database asks these locks, and a long run must not come to a stop in the middle.
    const bool isWrittenElsewhere = writers->next() && writers->intAt(0) == 1;
    if (!isWrittenElsewhere)
        return true;
    release(unlockTableText, {tableNumber(table), tableTime(table), timeNumber(since)});
    return false;
}

void PostgresLocks::releaseTable(const QString &table, const Held &held) noexcept
{
    release(unlockTableText, {tableNumber(table), tableTime(table), timeNumber(held.tableSince)});
}

Answer<std::optional<LockOwner>> PostgresLocks::askOwner(const QString &sql, const QList<Value> &parameters)
{
    StatementPtr statement = m_connection.prepare(sql);
    bindAll(*statement, parameters);
    return [row = asked(std::move(statement))]() -> std::optional<LockOwner> {
        if (!row->next())
            return std::nullopt;
        return sessionOwner(row->textAt(0).toUtf8().constData(), row->textAt(1).toUtf8().constData(),
                            row->textAt(2).toUtf8().constData(), row->textAt(3).toUtf8().constData());
    };
}

Answer<std::optional<LockOwner>> PostgresLocks::askHolder(const QString &table, std::optional<qint64> place)
{
    const Value whole = shown(tableNumber(table));
    QList<Value> parameters{whole, shown(tableTime(table)), shown(recordTime(table, 0)), whole,
                            shown(recordNumber(table))};
    if (place)
        parameters << shown(*place);
    parameters << whole;
    return askOwner(advisoryHolders.arg(place ? u" AND held.number = CAST(? AS bigint)"_s : QString()), parameters);
}

// Other writers hold tables for moments only, but records of them for nobody.
std::optional<LockOwner> PostgresLocks::ownerOf(const QString &table)
{
    const QString name = table.toLower();
    if (auto owner = askHolder(name, {})())
        return owner;
    return askOwner(foreignWriters + " LIMIT 1"_L1, {name})();
}

std::optional<LockOwner> PostgresLocks::ownerOf(const QString &table, const QList<qint64> &key)
{
    return askOwnerOf(table, key)();
}

Answer<std::optional<LockOwner>> PostgresLocks::askOwnerOf(const QString &table, const QList<qint64> &key)
{
    const QString name = table.toLower();
    return askHolder(name, placeOf(name, key));
}

} // namespace Engine
