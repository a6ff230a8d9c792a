#pragma once

#include <chrono>
#include <QString>
#include <QtGlobal>

// What the engine needs of the operating system itself, in one place for each system.

namespace Engine {

// False for folders of other computers, where memory cannot be shared between the users of a file.
bool isLocalFileSystem(const QString &path);

QString systemUserName();

// Waits until the socket can be read, or written; false when the time has passed.
bool waitForSocket(int socket, bool forWriting, std::chrono::milliseconds time);
// Waits until one of two sockets can be read, or the second one written; false when the time has passed.
bool waitForEither(int first, int second, bool secondForWriting, std::chrono::milliseconds time);

// A file for locks on ranges of bytes. The locks belong to this object alone, whatever else the process has open,
// and go with it or with the process. Ranges may lie far beyond the end of the file.
class RangeLockFile
{
public:
    explicit RangeLockFile(const QString &path); // throws CannotOpen or ReadOnly
    ~RangeLockFile();
    RangeLockFile(const RangeLockFile &) = delete;
    RangeLockFile &operator=(const RangeLockFile &) = delete;

    enum class Mode { Shared, Exclusive };
    // At once; false when somebody else is in the way. A range held already changes its mode.
    bool tryLock(qint64 from, qint64 count, Mode mode);
    void unlock(qint64 from, qint64 count);
    bool isLockedByOthers(qint64 from, qint64 count) const;

    QByteArray read(qint64 from, qint64 count) const;
    void write(qint64 from, const QByteArray &bytes);

private:
    int m_handle = -1;
    QString m_path;
};

} // namespace Engine
