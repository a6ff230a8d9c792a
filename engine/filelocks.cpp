#include "engine/filelocks.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QStringList>
#include <QSysInfo>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// 2^62 bytes for tables, in stretches of 2^36; the notes' bytes lie above them.
constexpr int stretchBits = 36;
constexpr qint64 stretch = qint64(1) << stretchBits;
constexpr qint64 tableCount = qint64(1) << (62 - stretchBits);
constexpr qint64 noteLocks = qint64(1) << 62;
constexpr int noteCount = 512;
constexpr int noteSize = 512;

quint64 hashOf(const QByteArray &bytes)
{
    const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    return qFromBigEndian<quint64>(digest.constData());
}

qint64 openByte(const QString &table)
{
    return static_cast<qint64>(hashOf(table.toUtf8()) % static_cast<quint64>(tableCount)) * stretch;
}

qint64 firstRecordByte(const QString &table) { return openByte(table) + 1; }

// A single key is its own place, so that no two records share one. Longer keys share the rest of the stretch.
qint64 recordByte(const QString &table, const QList<qint64> &key)
{
    constexpr qint64 singles = qint64(1) << 33;
    constexpr qint64 bias = qint64(1) << 32;
    qint64 place = 0;
    if (key.size() == 1 && key.first() >= -bias && key.first() < bias) {
        place = key.first() + bias;
    } else {
        const QByteArray bytes(reinterpret_cast<const char *>(key.constData()),
                               key.size() * static_cast<qsizetype>(sizeof(qint64)));
        place = singles + static_cast<qint64>(hashOf(bytes) % static_cast<quint64>(stretch - 1 - singles));
    }
    return firstRecordByte(table) + place;
}

} // namespace

QString LockOwner::description() const
{
    QString text = user.isEmpty() ? QCoreApplication::translate("Engine", "another user") : user;
    if (!host.isEmpty())
        text = QCoreApplication::translate("Engine", "%1 on %2").arg(text, host);
    if (processId > 0)
        text = QCoreApplication::translate("Engine", "%1 (process %2)").arg(text).arg(processId);
    return text;
}

FileLocks::FileLocks(const QString &path, const QString &user)
    : m_file(path.isEmpty() ? nullptr : std::make_unique<RangeLockFile>(path))
    , m_user(user.isEmpty() && m_file ? systemUserName() : user)
{
}

FileLocks::~FileLocks() = default;

bool FileLocks::tryRange(qint64 from, qint64 count, RangeLockFile::Mode mode)
{
    return !m_file || m_file->tryLock(from, count, mode);
}

void FileLocks::freeRange(qint64 from, qint64 count)
{
    if (m_file && count > 0)
        m_file->unlock(from, count);
}

FileLocks::Held *FileLocks::held(const QString &table)
{
    const auto found = m_held.find(table.toLower());
    return found == m_held.end() ? nullptr : &found->second;
}

void FileLocks::forgetIfFree(const QString &table)
{
    const auto found = m_held.find(table.toLower());
    if (found != m_held.end() && found->second.isFree())
        m_held.erase(found);
}

bool FileLocks::tryOpenShared(const QString &table)
{
    Held &own = m_held[table.toLower()];
    const bool covered = own.shared > 0 || own.exclusive > 0;
    if (!covered && !tryRange(openByte(table.toLower()), 1, RangeLockFile::Mode::Shared)) {
        forgetIfFree(table);
        return false;
    }
    ++own.shared;
    return true;
}

void FileLocks::closeShared(const QString &table)
{
    Held *own = held(table);
    if (!own || own->shared == 0)
        return;
    if (--own->shared == 0 && own->exclusive == 0)
        freeRange(openByte(table.toLower()), 1);
    forgetIfFree(table);
}

bool FileLocks::tryOpenExclusive(const QString &table)
{
    Held &own = m_held[table.toLower()];
    if (own.exclusive == 0 && !tryRange(openByte(table.toLower()), 1, RangeLockFile::Mode::Exclusive)) {
        forgetIfFree(table);
        return false;
    }
    ++own.exclusive;
    return true;
}

void FileLocks::closeExclusive(const QString &table)
{
    Held *own = held(table);
    if (!own || own->exclusive == 0)
        return;
    if (--own->exclusive == 0) {
        if (own->shared > 0)
            tryRange(openByte(table.toLower()), 1, RangeLockFile::Mode::Shared);
        else
            freeRange(openByte(table.toLower()), 1);
    }
    forgetIfFree(table);
}

bool FileLocks::tryLockRecord(const QString &table, const QList<qint64> &key)
{
    const qint64 byte = recordByte(table.toLower(), key);
    Held &own = m_held[table.toLower()];
    const bool taken =
        own.records.contains(byte) || (own.table == 0 && !tryRange(byte, 1, RangeLockFile::Mode::Exclusive));
    if (taken) {
        forgetIfFree(table);
        return false;
    }
    own.records.insert(byte);
    if (own.table == 0 && own.records.size() == 1)
        writeNote();
    return true;
}

void FileLocks::unlockRecord(const QString &table, const QList<qint64> &key)
{
    Held *own = held(table);
    const qint64 byte = recordByte(table.toLower(), key);
    if (!own || own->records.erase(byte) == 0)
        return;
    if (own->table == 0) // else the byte belongs to the table lock
        freeRange(byte, 1);
    const bool last = !own->hasLocks();
    forgetIfFree(table);
    if (last)
        writeNote();
}

bool FileLocks::tryLockTable(const QString &table)
{
    Held &own = m_held[table.toLower()];
    if (own.table == 0
        && !tryRange(firstRecordByte(table.toLower()), stretch - 1, RangeLockFile::Mode::Exclusive)) {
        forgetIfFree(table);
        return false;
    }
    if (++own.table == 1)
        writeNote();
    return true;
}

void FileLocks::unlockTable(const QString &table)
{
    Held *own = held(table);
    if (!own || own->table == 0 || --own->table > 0)
        return;
    // All bytes but those of records that are still being edited.
    const qint64 end = openByte(table.toLower()) + stretch;
    qint64 from = firstRecordByte(table.toLower());
    for (const qint64 byte : own->records) {
        freeRange(from, byte - from);
        from = byte + 1;
    }
    freeRange(from, end - from);
    forgetIfFree(table);
    writeNote();
}

bool FileLocks::holdsTable(const QString &table) const
{
    const auto found = m_held.find(table.toLower());
    return found != m_held.end() && found->second.table > 0;
}

void FileLocks::takeNote()
{
    for (int note = 0; note < noteCount && m_note < 0; ++note) {
        if (m_file->tryLock(noteLocks + note, 1, RangeLockFile::Mode::Exclusive))
            m_note = note;
    }
}

void FileLocks::writeNote()
{
    if (!m_file)
        return;
    if (m_note < 0)
        takeNote();
    if (m_note < 0)
        return; // more users than notes: their locks hold, only their names stay unknown
    QStringList parts{m_user, QSysInfo::machineHostName(), QString::number(QCoreApplication::applicationPid())};
    for (const auto &[table, own] : m_held) {
        if (own.hasLocks())
            parts << (own.table > 0 ? "*"_L1 : ""_L1) + table;
    }
    QByteArray bytes = parts.join(u'\t').toUtf8().left(noteSize - 1) + '\n';
    m_file->write(qint64(m_note) * noteSize, bytes.leftJustified(noteSize, ' '));
}

std::optional<LockOwner> FileLocks::ownerOf(const QString &table)
{
    const QString name = table.toLower();
    if (!m_file || !m_file->isLockedByOthers(firstRecordByte(name), stretch - 1))
        return std::nullopt;
    const QByteArray notes = m_file->read(0, qint64(noteCount) * noteSize);
    for (int note = 0; note * noteSize < notes.size(); ++note) {
        if (note == m_note)
            continue;
        const QStringList parts = QString::fromUtf8(notes.mid(note * noteSize, noteSize)).trimmed().split(u'\t');
        const bool holder = parts.size() > 3 && (parts.contains(name) || parts.contains(u'*' + name));
        if (holder && m_file->isLockedByOthers(noteLocks + note, 1))
            return LockOwner{parts[0], parts[1], parts[2].toLongLong()};
    }
    return std::nullopt;
}

} // namespace Engine
