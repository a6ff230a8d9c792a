#pragma once

#include <QTemporaryDir>
#include <sys/mount.h>

// A small file system of its own on a folder, for what only a real one does; needs the right to mount.
class SmallDisk
{
public:
    explicit SmallDisk(const char *options)
        : m_mounted(mount("tmpfs", place().constData(), "tmpfs", 0, options) == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount(place().constData());
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_mounted; }
    QString path() const { return m_folder.path(); }
    bool makeReadOnly()
    {
        return mount("tmpfs", place().constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    QByteArray place() const { return m_folder.path().toLocal8Bit(); }

    QTemporaryDir m_folder;
    bool m_mounted;
};
