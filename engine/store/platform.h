#pragma once

#include <chrono>
#include <optional>
#include <QString>
#include <QtGlobal>

// What the engine needs of the operating system itself, in one place for each system.

namespace Engine {

// False for folders of other computers, where memory cannot be shared between the users of a file.
bool isLocalFileSystem(const QString &path);

// Throws CannotOpen for a path in which a name is not UTF-8, as names need not be here: such names are told apart by the
// system, but not by their text.
void requireUtf8Name(const QString &path);

// Makes an empty file that owner and group may use, and nobody else, whatever the mask; nothing where there is one.
// Failures show when it is opened.
void makeOwnFile(const QString &path);

// What has been renamed in the folder, made in it or taken out stays so after a power cut. False where that has failed;
// some file systems do not know it, and need none.
bool syncFolder(const QString &folder);

// What has been written into the file stays so after a power cut. False, with errno, where the system cannot promise that.
bool syncFile(const QString &path);

// Makes the folder, and those above it that are missing, so that they stay after a power cut. False with errno.
bool makeFolder(const QString &folder);

QString systemUserName();

// Differs between two starts of the computer. Empty when the system does not tell.
QString systemStart();

// What tells a file from any other, now or later at the same path.
struct FileIdentity
{
    quint64 device = 0;
    quint64 file = 0;
    qint64 born = 0; // 0 when the file system does not know; else numbers of deleted files do not come back

    bool operator==(const FileIdentity &) const = default;
};
// Of the file that the path leads to, through links; nothing when there is none.
std::optional<FileIdentity> identityOfFile(const QString &path);

// How many names (hard links) a file has; 0 when there is none.
quint64 namesOfFile(const QString &path);

// Waits until the socket can be read, or written; false when the time has passed.
bool waitForSocket(int socket, bool forWriting, std::chrono::milliseconds time);
// Waits until one of two sockets can be read, or the second one written; false when the time has passed.
bool waitForEither(int first, int second, bool secondForWriting, std::chrono::milliseconds time);

// A file for locks on ranges of bytes. The locks belong to this object alone, whatever else the process has open,
// and go with it or with the process. Ranges may lie far beyond the end of the file.
class RangeLockFile
{
public:
    // Makes the file when there is none. A link is not followed. Throws CannotOpen or ReadOnly.
    explicit RangeLockFile(const QString &path);
    ~RangeLockFile();
    RangeLockFile(const RangeLockFile &) = delete;
    RangeLockFile &operator=(const RangeLockFile &) = delete;

    const QString &path() const { return m_path; }
    bool isInPlace() const; // whether the path still leads to this file, where others look for its locks

    enum class Mode { Shared, Exclusive };
    // At once; false when somebody else is in the way. A range held already changes its mode.
    bool tryLock(qint64 from, qint64 count, Mode mode);
    void unlock(qint64 from, qint64 count);
    bool isLockedByOthers(qint64 from, qint64 count) const;
    // A program on this machine that has locked a part of the range, as far as the system tells: "flock (process 4711)".
    QString programLocking(qint64 from, qint64 count) const;

    QByteArray read(qint64 from, qint64 count) const;
    void write(qint64 from, const QByteArray &bytes);

private:
    int m_handle = -1;
    QString m_path;
    QByteArray m_systemPath;
};

} // namespace Engine
