#include "engine/store/platform.h"

#include "engine/values/error.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace Engine {

namespace {

// File systems of other computers, by the numbers that statfs() gives them. QStorageInfo names the lower of two that
// are mounted at the same place: "autofs" where NFS or SMB has been mounted on demand.
constexpr unsigned long remoteFileSystems[] = {
    0x6969, // NFS
    0x517B, // SMB
    0xFF534D42, // CIFS
    0xFE534D42, // SMB2
    0x65735546, // FUSE: whatever stands behind it
    0x01021997, // 9P
    0x5346414F, // AFS
    0x00C36400, // Ceph
};

int lock(int handle, int command, struct flock &range)
{
    int result = 0;
    do {
        result = fcntl(handle, command, &range);
    } while (result != 0 && errno == EINTR);
    return result;
}

struct flock rangeOf(int type, qint64 from, qint64 count)
{
    struct flock range = {};
    range.l_type = static_cast<short>(type);
    range.l_whence = SEEK_SET;
    range.l_start = from;
    range.l_len = count;
    return range;
}

std::optional<FileIdentity> identityOf(int folder, const char *path, int flags)
{
    struct statx info = {};
    if (statx(folder, path, flags, STATX_TYPE | STATX_INO | STATX_BTIME, &info) != 0 || !S_ISREG(info.stx_mode))
        return std::nullopt;
    const bool tellsBirth = (info.stx_mask & STATX_BTIME) != 0;
    constexpr qint64 second = 1'000'000'000;
    return FileIdentity{makedev(info.stx_dev_major, info.stx_dev_minor), info.stx_ino,
                        tellsBirth ? info.stx_btime.tv_sec * second + info.stx_btime.tv_nsec : 0};
}

[[noreturn]] void throwLockFailure(const QString &path)
{
    const QString words = QString::fromLocal8Bit(std::strerror(errno));
    raise(ErrorCode::General, Texts::tr("The lock file %1 cannot be used (%2).").arg(path, words), words);
}

} // namespace

bool isLocalFileSystem(const QString &path)
{
    struct statfs info = {};
    if (statfs(QFile::encodeName(QFileInfo(path).path()).constData(), &info) != 0)
        return false;
    const auto type = static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFUL;
    for (const unsigned long remote : remoteFileSystems) {
        if (type == remote)
            return false;
    }
    return true;
}

void requireUtf8Name(const QString &path)
{
    if (path.contains(QChar::ReplacementCharacter)) // what Qt and SQLite's names make of other bytes
        raise(ErrorCode::CannotOpen,
              Texts::tr("%1 cannot be used: a name in this path is not UTF-8. Rename the folder.").arg(path));
}

void makeOwnFile(const QString &path)
{
    constexpr mode_t ownerAndGroup = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP;
    const QByteArray name = QFile::encodeName(path);
    const int handle =
        ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (handle < 0)
        return;
    ::fchmod(handle, ownerAndGroup);
    ::close(handle);
}

bool syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool isSynced = ::fsync(handle) == 0;
    ::close(handle);
    return isSynced;
}

bool syncFile(const QString &path)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool synced = ::fsync(handle) == 0;
    const int error = errno;
    ::close(handle);
    errno = error;
    return synced;
}

bool makeFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir())
        return true;
    const QString parent = QFileInfo(QDir::cleanPath(folder)).absolutePath();
    if (!makeFolder(parent))
        return false;
    constexpr mode_t allowed = S_IRWXU | S_IRWXG | S_IROTH | S_IXOTH; // nobody else replaces what is in it
    if (::mkdir(QFile::encodeName(folder).constData(), allowed) != 0 && errno != EEXIST)
        return false;
    syncFolder(parent);
    return QFileInfo(folder).isDir();
}

QString systemUserName()
{
    const passwd *entry = getpwuid(geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(geteuid());
}

QString systemStart()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

std::optional<FileIdentity> identityOfFile(const QString &path)
{
    return identityOf(AT_FDCWD, QFile::encodeName(path).constData(), 0);
}

quint64 namesOfFile(const QString &path)
{
    struct statx info = {};
    return statx(AT_FDCWD, QFile::encodeName(path).constData(), 0, STATX_NLINK, &info) == 0 ? info.stx_nlink : 0;
}

namespace {

struct pollfd waitingOn(int socket, bool forWriting)
{
    return {socket, static_cast<short>(forWriting ? POLLOUT : POLLIN), 0};
}

bool waitForAny(struct pollfd *sockets, nfds_t count, std::chrono::milliseconds time)
{
    int result = 0;
    do {
        result = poll(sockets, count, static_cast<int>(time.count()));
    } while (result < 0 && errno == EINTR);
    return result > 0;
}

} // namespace

bool waitForSocket(int socket, bool forWriting, std::chrono::milliseconds time)
{
    struct pollfd state = waitingOn(socket, forWriting);
    return waitForAny(&state, 1, time);
}

bool waitForEither(int first, int second, bool secondForWriting, std::chrono::milliseconds time)
{
    struct pollfd states[] = {waitingOn(first, false), waitingOn(second, secondForWriting)};
    return waitForAny(states, 2, time);
}

RangeLockFile::RangeLockFile(const QString &path)
    : m_path(path)
    , m_systemPath(QFile::encodeName(path))
{
    // Never deleted or replaced: the locks are on the file itself, not on its name.
    makeOwnFile(path);
    m_handle = ::open(m_systemPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (m_handle >= 0 && isInPlace())
        return;
    if (m_handle >= 0 || errno == ELOOP) {
        ::close(m_handle);
        raise(ErrorCode::CannotOpen,
              Texts::tr("The lock file %1 is a link, or no file at all. Remove it while "
                        "nobody uses the database, and open the program anew.")
                  .arg(path));
    }
    const QString words = QString::fromLocal8Bit(std::strerror(errno));
    const bool denied = errno == EACCES || errno == EROFS || errno == EPERM;
    raise(denied ? ErrorCode::ReadOnly : ErrorCode::CannotOpen,
          Texts::tr("The lock file %1 cannot be written (%2). Check the permissions of "
                    "the file and of its folder.")
              .arg(path, words),
          words);
}

RangeLockFile::~RangeLockFile() { ::close(m_handle); }

bool RangeLockFile::isInPlace() const
{
    const auto own = identityOf(m_handle, "", AT_EMPTY_PATH);
    return own && own == identityOf(AT_FDCWD, m_systemPath.constData(), AT_SYMLINK_NOFOLLOW);
}

bool RangeLockFile::tryLock(qint64 from, qint64 count, Mode mode)
{
    struct flock range = rangeOf(mode == Mode::Shared ? F_RDLCK : F_WRLCK, from, count);
    if (lock(m_handle, F_OFD_SETLK, range) == 0)
        return true;
    if (errno != EAGAIN && errno != EACCES)
        throwLockFailure(m_path);
    return false;
}

void RangeLockFile::unlock(qint64 from, qint64 count)
{
    struct flock range = rangeOf(F_UNLCK, from, count);
    lock(m_handle, F_OFD_SETLK, range);
}

bool RangeLockFile::isLockedByOthers(qint64 from, qint64 count) const
{
    struct flock range = rangeOf(F_WRLCK, from, count);
    return lock(m_handle, F_OFD_GETLK, range) == 0 && range.l_type != F_UNLCK;
}

namespace {

// Of a line such as "lock:\t1: POSIX  ADVISORY  READ 4711 fe:00:1234 0 EOF"; locks of whole files (FLOCK) are none of ours.
bool isLockOn(const QByteArray &line, qint64 from, qint64 count)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    if (words.size() < 4 || words[0] != "lock:" || words[2] == "FLOCK")
        return false;
    const QByteArray &end = words.constLast();
    const qint64 first = words[words.size() - 2].toLongLong();
    return first < from + count && (end == "EOF" || end.toLongLong() >= from);
}

bool holdsLock(const QString &process, const QString &path, qint64 from, qint64 count)
{
    const QFileInfoList handles = QDir(process + QStringLiteral("/fd")).entryInfoList(QDir::System | QDir::Files);
    for (const QFileInfo &handle : handles) {
        if (handle.symLinkTarget() != path)
            continue;
        QFile info(process + QStringLiteral("/fdinfo/") + handle.fileName());
        if (!info.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> lines = info.readAll().split('\n');
        if (std::any_of(lines.begin(), lines.end(),
                        [&](const QByteArray &line) { return isLockOn(line, from, count); }))
            return true;
    }
    return false;
}

} // namespace

// Other users' programs keep their files to themselves.
QString RangeLockFile::programLocking(qint64 from, qint64 count) const
{
    const QString path = QFileInfo(m_path).canonicalFilePath();
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : processes) {
        const QString folder = QStringLiteral("/proc/") + process;
        if (!process.front().isDigit() || !holdsLock(folder, path, from, count))
            continue;
        QFile name(folder + QStringLiteral("/comm"));
        const bool isNamed = name.open(QIODevice::ReadOnly);
        return Texts::tr("%1 (process %2)")
            .arg(isNamed ? QString::fromLocal8Bit(name.readAll().trimmed()) : QString(), process);
    }
    return {};
}

QByteArray RangeLockFile::read(qint64 from, qint64 count) const
{
    QByteArray bytes(count, '\0');
    const ssize_t got = ::pread(m_handle, bytes.data(), static_cast<size_t>(count), from);
    bytes.resize(got > 0 ? got : 0);
    return bytes;
}

void RangeLockFile::write(qint64 from, const QByteArray &bytes)
{
    // Only names for messages stand there, so a failure is nobody's concern.
    const ssize_t written = ::pwrite(m_handle, bytes.constData(), static_cast<size_t>(bytes.size()), from);
    Q_UNUSED(written);
}

} // namespace Engine
