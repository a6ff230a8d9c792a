#include "engine/sqlite/locks.h"

#include "engine/values/error.h"
#include "engine/values/stablenumber.h"

#include <algorithm>
#include <chrono>
#include <QCoreApplication>
#include <QScopeGuard>
#include <QSet>
#include <QStringList>
#include <QSysInfo>
#include <thread>

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
constexpr int notedTimes = 10; // more would not fit
constexpr qint64 memoPlace = qint64(noteCount) * noteSize;
constexpr qint64 memoLock = noteLocks + noteCount;
constexpr qint64 waitingLock = memoLock + 1;
constexpr int memoAttempts = 500; // a millisecond apart: others hold it for a few reads and writes of the memo

qint64 openByte(const QString &table)
{
    return static_cast<qint64>(stableNumber(table) % static_cast<quint64>(tableCount)) * stretch;
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
        place = singles + static_cast<qint64>(stableNumber(key) % static_cast<quint64>(stretch - 1 - singles));
    }
    return firstRecordByte(table) + place;
}

// The beginning of a note's part that tells since when: "@*item=", "@item:5=".
QString timeOf(const QString &table) { return u"@*%1="_s.arg(table); }
QString timeOf(const QString &table, qint64 record) { return u"@%1:%2="_s.arg(table).arg(record); }

LockOwner ownerFrom(const QStringList &note, const QString &timePart)
{
    LockOwner owner{note[0], note[1], {}};
    for (const QString &part : note) {
        if (part.startsWith(timePart))
            owner.since = QDateTime::fromSecsSinceEpoch(part.section(u'=', -1).toLongLong());
    }
    return owner;
}

} // namespace

FileLocks::FileLocks(const QString &path, const QString &user)
    : m_file(path.isEmpty() ? nullptr : std::make_unique<RangeLockFile>(path))
    , m_user(user.isEmpty() && m_file ? systemUserName() : user)
{
}

FileLocks::~FileLocks() = default;

void FileLocks::requireInPlace() const
{
    if (beforeLocking)
        beforeLocking();
    if (m_file->isInPlace())
        return;
    raise(ErrorCode::FileReplaced,
          Texts::tr("The lock file %1 has been deleted or replaced while it was in use. "
                    "Nothing can be saved any more: close the program and open it anew.")
              .arg(m_file->path()));
}

bool FileLocks::tryRange(qint64 from, qint64 count, RangeLockFile::Mode mode)
{
    if (!m_file)
        return true;
    requireInPlace();
    return m_file->tryLock(from, count, mode);
}

void FileLocks::freeRange(qint64 from, qint64 count)
{
    if (m_file && count > 0)
        m_file->unlock(from, count);
}

bool FileLocks::changeOpen(const QString &table, OpenMode from, OpenMode to, bool)
{
    if (to == OpenMode::None) {
        freeRange(openByte(table), 1);
        return true;
    }
    if (from == OpenMode::Exclusive) // going down asks nobody
        return !m_file || m_file->tryLock(openByte(table), 1, RangeLockFile::Mode::Shared);
    return tryRange(openByte(table), 1,
                    to == OpenMode::Shared ? RangeLockFile::Mode::Shared : RangeLockFile::Mode::Exclusive);
}

qint64 FileLocks::placeOf(const QString &table, const QList<qint64> &key) const { return recordByte(table, key); }

bool FileLocks::acquireRecord(const QString &, const Place &place)
{
    return place.tableHeld || tryRange(place.record, 1, RangeLockFile::Mode::Exclusive);
}

void FileLocks::releaseRecord(const QString &, const Place &place) noexcept
{
    if (!place.tableHeld) // else the byte belongs to the table lock
        freeRange(place.record, 1);
}

bool FileLocks::acquireTable(const QString &table, qint64)
{
    return tryRange(firstRecordByte(table), stretch - 1, RangeLockFile::Mode::Exclusive);
}

void FileLocks::releaseTable(const QString &table, const Held &held) noexcept
{
    qint64 from = firstRecordByte(table);
    for (const auto &[byte, since] : held.records) {
        freeRange(from, byte - from);
        from = byte + 1;
    }
    freeRange(from, openByte(table) + stretch - from);
}

// More users than notes, or a system that gives no more locks: those on tables hold, only the name stays unknown.
void FileLocks::takeNote() noexcept
{
    try {
        for (int note = 0; note < noteCount && m_note < 0; ++note) {
            if (m_file->tryLock(noteLocks + note, 1, RangeLockFile::Mode::Exclusive))
                m_note = note;
        }
    } catch (const EngineError &) {
    }
}

void FileLocks::changed() noexcept
{
    if (!m_file)
        return;
    if (m_note < 0)
        takeNote();
    if (m_note < 0)
        return;
    QStringList parts{m_user, QSysInfo::machineHostName(), QString::number(QCoreApplication::applicationPid())};
    QStringList times; // at the end, where a note that is too long is cut off
    for (const auto &[table, held] : everything()) {
        if (!held.keepsOthersFromWriting())
            continue;
        parts << (held.table > 0 ? "*"_L1 : ""_L1) + table;
        if (held.table > 0)
            times << timeOf(table) + QString::number(held.tableSince);
        for (auto record = held.records.begin(); record != held.records.end() && times.size() < notedTimes;
             ++record)
            times << timeOf(table, record->first) + QString::number(record->second);
    }
    QByteArray bytes = (parts + times).join(u'\t').toUtf8().left(noteSize - 1) + '\n';
    m_file->write(qint64(m_note) * noteSize, bytes.leftJustified(noteSize, ' '));
}

// A system that gives no more locks: nobody is told, and those who wait have to be lucky.
void FileLocks::wait() noexcept
{
    if (m_waits || !m_file)
        return;
    try {
        m_waits = m_file->tryLock(waitingLock, 1, RangeLockFile::Mode::Shared);
    } catch (const EngineError &) {
    }
}

void FileLocks::waited() noexcept
{
    if (std::exchange(m_waits, false))
        m_file->unlock(waitingLock, 1);
}

bool FileLocks::isAwaited() const { return m_file && m_file->isLockedByOthers(waitingLock, 1); }

QString FileLocks::memo() const
{
    return m_file ? QString::fromUtf8(m_file->read(memoPlace, noteSize)).trimmed() : QString();
}

void FileLocks::setMemo(const QString &text)
{
    if (m_file)
        m_file->write(memoPlace, text.toUtf8().left(noteSize - 1).leftJustified(noteSize - 1, ' ') + '\n');
}

void FileLocks::holdingMemo(const std::function<void()> &step)
{
    if (!m_file)
        return step();
    const auto unlock = qScopeGuard([this] { m_file->unlock(memoLock, 1); });
    try {
        for (int attempt = 1;
             !m_file->tryLock(memoLock, 1, RangeLockFile::Mode::Exclusive) && attempt < memoAttempts; ++attempt)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    } catch (const EngineError &) {
        // A system that gives no more locks: what others write at the same moment may be missed.
    }
    step();
}

// Of the connections that are there still.
QList<QStringList> FileLocks::notesOfOthers(Notes which) const
{
    QList<QStringList> found;
    const QByteArray notes = m_file->read(0, qint64(noteCount) * noteSize);
    for (qint64 note = 0; note * noteSize < notes.size(); ++note) {
        const QStringList parts = QString::fromUtf8(notes.mid(note * noteSize, noteSize)).trimmed().split(u'\t');
        const bool isWanted = parts.size() > 3 || (which == Notes::All && parts.size() == 3);
        if (note != m_note && isWanted && m_file->isLockedByOthers(noteLocks + note, 1))
            found << parts;
    }
    return found;
}

std::optional<LockOwner> FileLocks::ownerOf(const QString &table)
{
    const QString name = table.toLower();
    if (!m_file || !m_file->isLockedByOthers(firstRecordByte(name), stretch - 1))
        return std::nullopt;
    const QList<QStringList> notes = notesOfOthers();
    for (const QStringList &note : notes) {
        if (note.contains(u'*' + name))
            return ownerFrom(note, timeOf(name));
        if (note.contains(name))
            return ownerFrom(note, u"@%1:"_s.arg(name));
    }
    return stranger(firstRecordByte(name), stretch - 1);
}

int FileLocks::programs() const
{
    if (!m_file)
        return 0;
    QSet<QString> programs;
    const auto add = [&programs](const QString &host, const QString &process) {
        programs.insert(host + u'/' + process);
    };
    if (m_note >= 0)
        add(QSysInfo::machineHostName(), QString::number(QCoreApplication::applicationPid()));
    const QList<QStringList> notes = notesOfOthers(Notes::All);
    for (const QStringList &note : notes)
        add(note[1], note[2]);
    return static_cast<int>(programs.size());
}

std::optional<LockOwner> FileLocks::ownerOfRun() const
{
    if (!m_file)
        return std::nullopt;
    const QList<QStringList> notes = notesOfOthers();
    for (const QStringList &note : notes) {
        const auto table = std::ranges::find_if(note, [](const QString &part) { return part.startsWith(u'*'); });
        if (table != note.end())
            return ownerFrom(note, timeOf(table->sliced(1)));
    }
    return std::nullopt;
}

// A program that is none of this system's users leaves no note: whoever may read the lock file can lock it for reading.
std::optional<LockOwner> FileLocks::stranger(qint64 from, qint64 count) const
{
    const QString program = m_file->programLocking(from, count);
    return program.isEmpty() ? std::nullopt : std::optional(LockOwner{program, QSysInfo::machineHostName(), {}});
}

std::optional<LockOwner> FileLocks::ownerOf(const QString &table, const QList<qint64> &key)
{
    const QString name = table.toLower();
    const qint64 place = recordByte(name, key);
    if (!m_file || !m_file->isLockedByOthers(place, 1))
        return std::nullopt;
    const QList<QStringList> notes = notesOfOthers();
    for (const QStringList &note : notes) {
        const LockOwner ofRecord = ownerFrom(note, timeOf(name, place));
        if (ofRecord.since.isValid())
            return ofRecord;
        if (note.contains(u'*' + name))
            return ownerFrom(note, timeOf(name));
    }
    return stranger(place, 1).value_or(LockOwner()); // whose note does not tell
}

} // namespace Engine
