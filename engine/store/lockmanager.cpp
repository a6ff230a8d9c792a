#include "engine/store/lockmanager.h"

#include "engine/values/error.h"
#include "engine/values/userlocale.h"

#include <QLocale>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

QString inBrackets(const std::optional<LockOwner> &owner)
{
    return owner ? u" (%1)"_s.arg(owner->description()) : QString();
}

QString momentText(const QDateTime &moment)
{
    const QDateTime here = moment.toLocalTime();
    const bool isToday = here.date() == QDate::currentDate();
    const QLocale locale = userLocale().locale;
    return isToday ? locale.toString(here.time(), QLocale::ShortFormat)
                   : locale.toString(here, QLocale::ShortFormat);
}

} // namespace

QString LockOwner::description() const
{
    QString text = user.isEmpty() ? Texts::tr("another user") : user;
    if (!host.isEmpty())
        text = Texts::tr("%1 on %2").arg(text, host);
    if (since.isValid())
        text = Texts::tr("%1, since %2").arg(text, momentText(since));
    return text;
}

LockManager::Held *LockManager::find(const QString &name)
{
    const auto found = m_held.find(name);
    return found == m_held.end() ? nullptr : &found->second;
}

void LockManager::goDown(const QString &name, OpenMode from, OpenMode to) noexcept
{
    try {
        changeOpen(name, from, to, false);
    } catch (const EngineError &) {
        // Whatever is done next tells that the store is gone.
    }
}

bool LockManager::tryOpenShared(const QString &table, bool isToBeDescribed)
{
    const QString name = table.toLower();
    const Held *held = find(name);
    const bool covered = held && (held->shared > 0 || held->exclusive > 0);
    if (!covered && !changeOpen(name, OpenMode::None, OpenMode::Shared, isToBeDescribed))
        return false;
    ++m_held[name].shared;
    return true;
}

QStringList LockManager::openSharedTogether(const QStringList &tables)
{
    QStringList wanted;
    for (const QString &table : tables) {
        const QString name = table.toLower();
        const Held *held = find(name);
        if (!wanted.contains(name) && (!held || held->shared + held->exclusive == 0))
            wanted << name;
    }
    const QStringList opened = wanted.size() > 1 ? acquireShared(wanted) : QStringList();
    for (const QString &name : opened)
        ++m_held[name].shared;
    return opened;
}

void LockManager::closeShared(const QString &table) noexcept
{
    const QString name = table.toLower();
    Held *held = find(name);
    if (!held || held->shared == 0)
        return;
    if (--held->shared == 0 && held->exclusive == 0)
        goDown(name, OpenMode::Shared, OpenMode::None);
}

bool LockManager::tryOpenExclusive(const QString &table, bool isToBeDescribed)
{
    const QString name = table.toLower();
    const Held *held = find(name);
    const OpenMode before = held && held->shared > 0 ? OpenMode::Shared : OpenMode::None;
    const bool covered = held && held->exclusive > 0;
    if (!covered && !changeOpen(name, before, OpenMode::Exclusive, isToBeDescribed))
        return false;
    ++m_held[name].exclusive;
    return true;
}

void LockManager::closeExclusive(const QString &table) noexcept
{
    const QString name = table.toLower();
    Held *held = find(name);
    if (!held || held->exclusive == 0)
        return;
    if (--held->exclusive == 0)
        goDown(name, OpenMode::Exclusive, held->shared > 0 ? OpenMode::Shared : OpenMode::None);
}

bool LockManager::tryLockRecord(const QString &table, const QList<qint64> &key, const Along &along)
{
    const QString name = table.toLower();
    const qint64 place = placeOf(name, key);
    Held *held = find(name);
    if (held && held->records.contains(place)) {
        held->losable.erase(place);
        return held->dueRecords.erase(place) > 0;
    }
    const qint64 since = QDateTime::currentSecsSinceEpoch();
    if (!acquireRecord(name, {place, since, held && held->table > 0, along}))
        return false;
    Held &now = m_held[name];
    now.records.emplace(place, since);
    if (now.table == 0)
        changed();
    return true;
}

void LockManager::unlockRecord(const QString &table, const QList<qint64> &key) noexcept
{
    const QString name = table.toLower();
    const qint64 place = placeOf(name, key);
    Held *held = find(name);
    if (!held || !held->records.contains(place))
        return;
    if (m_inTransaction)
        held->dueRecords.insert(place);
    else
        giveBackRecord(name, place);
}

void LockManager::giveBackRecord(const QString &name, qint64 place) noexcept
{
    Held &held = m_held[name];
    const bool tableHeld = held.table > 0;
    const qint64 since = held.records[place];
    held.records.erase(place);
    held.losable.erase(place);
    releaseRecord(name, {place, since, tableHeld});
    if (!tableHeld)
        changed();
}

bool LockManager::holdsRecord(const QString &table, const QList<qint64> &key) const
{
    const QString name = table.toLower();
    const auto found = m_held.find(name);
    const qint64 place = placeOf(name, key);
    return found != m_held.end() && found->second.records.contains(place)
        && !found->second.dueRecords.contains(place);
}

void LockManager::mayBeLost(const QString &table, const QList<qint64> &key)
{
    const QString name = table.toLower();
    if (Held *held = find(name))
        held->losable.insert(placeOf(name, key));
}

void LockManager::loseRecords()
{
    for (auto &[table, held] : m_held) {
        for (const qint64 place : std::exchange(held.losable, {})) {
            held.records.erase(place);
            held.dueRecords.erase(place);
        }
    }
}

bool LockManager::tryLockTable(const QString &table)
{
    const QString name = table.toLower();
    Held *held = find(name);
    if (held && std::exchange(held->tableIsDue, false))
        return true;
    const bool covered = held && held->table > 0;
    const qint64 since = QDateTime::currentSecsSinceEpoch();
    if (!covered && !acquireTable(name, since))
        return false;
    Held &now = m_held[name];
    if (++now.table > 1)
        return true;
    now.tableSince = since;
    changed();
    return true;
}

void LockManager::unlockTable(const QString &table) noexcept
{
    const QString name = table.toLower();
    Held *held = find(name);
    if (!held || held->table == 0 || held->tableIsDue)
        return;
    if (held->table > 1)
        --held->table;
    else if (m_inTransaction)
        held->tableIsDue = true;
    else
        giveBackTable(name);
}

void LockManager::giveBackTable(const QString &name) noexcept
{
    Held &held = m_held[name];
    held.table = 0;
    held.tableIsDue = false;
    releaseTable(name, held);
    changed();
}

void LockManager::transactionBegun() noexcept
{
    transactionEnded(); // of one that the store has ended by itself
    m_inTransaction = true;
}

void LockManager::transactionEnded() noexcept
{
    m_inTransaction = false;
    std::map<QString, std::set<qint64>> records;
    QStringList tables;
    for (auto &[name, held] : m_held) {
        if (!held.dueRecords.empty())
            records[name] = std::exchange(held.dueRecords, {});
        if (held.tableIsDue)
            tables.append(name);
    }
    for (const auto &[name, places] : records) {
        for (const qint64 place : places)
            giveBackRecord(name, place);
    }
    for (const QString &name : std::as_const(tables))
        giveBackTable(name);
}

bool LockManager::holdsTable(const QString &table) const
{
    const auto found = m_held.find(table.toLower());
    return found != m_held.end() && found->second.table > 0 && !found->second.tableIsDue;
}

Answer<std::optional<LockOwner>> LockManager::askOwnerOf(const QString &table, const QList<qint64> &key)
{
    return [this, table, key] { return ownerOf(table, key); };
}

QString LockManager::holderOf(const QString &table) { return inBrackets(ownerOf(table)); }

QString LockManager::holderOf(const QString &table, const QList<qint64> &key)
{
    return inBrackets(ownerOf(table, key));
}

} // namespace Engine
