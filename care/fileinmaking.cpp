#include "care/fileinmaking.h"

#include "base/ruleerror.h"
#include "care/texts.h"
#include "engine/store/platform.h"

#include <cerrno>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString shown(const QString &path) { return QDir::toNativeSeparators(path); }

void requireRoom(const QString &folder, qint64 bytes)
{
    const qint64 room = QStorageInfo(folder).bytesAvailable();
    constexpr qint64 mega = 1'000'000;
    if (room >= 0 && room < bytes)
        throw RuleError(CareTexts::tr("The disk of %1 has %2 MB left, and %3 MB are needed.")
                            .arg(shown(folder), QString::number(room / mega), QString::number(bytes / mega + 1)));
}

QString ownerIn(const QString &folder) { return folder + "/owner"_L1; }

// Whose owner is on another computer, or has not signed, stays.
void takeAwayLeft(const QString &parent)
{
    for (const QString &name : QDir(parent).entryList({u".copy-??????"_s}, QDir::Dirs | QDir::Hidden)) {
        const QString folder = QDir(parent).filePath(name);
        if (!QFileInfo::exists(ownerIn(folder)))
            continue;
        QLockFile owner(ownerIn(folder));
        owner.setStaleLockTime(0);
        if (!owner.tryLock())
            continue;
        owner.unlock();
        QDir(folder).removeRecursively();
    }
}

QString templateIn(const QString &parent)
{
    takeAwayLeft(parent);
    return parent + "/.copy-XXXXXX"_L1;
}

} // namespace

FileInMaking::FileInMaking(const QString &parent, qint64 bytes)
    : m_folder(templateIn(parent))
    , m_owner(ownerIn(m_folder.path()))
{
    requireRoom(parent, bytes);
    if (!m_folder.isValid())
        throw RuleError(
            CareTexts::tr("Nothing can be written in %1: %2").arg(shown(parent), m_folder.errorString()));
    m_owner.setStaleLockTime(0);
    m_owner.tryLock(); // without it the folder is not taken away if this program is killed
    m_session.type = Engine::SessionType::Local;
    m_database.directory = m_folder.path();
}

void FileInMaking::fill(const QString &file)
{
    if (!QFile::copy(file, path()))
        throw RuleError(CareTexts::tr("%1 cannot be copied into %2. Is there room on the disk?")
                            .arg(shown(file), shown(m_folder.path())));
}

void FileInMaking::moveTo(const QString &file)
{
    m_database.close();
    const bool hasLog = QFileInfo::exists(path() + "-wal"_L1); // which could not be written into the file
    if (hasLog || !Engine::syncFile(path()))
        throw RuleError(
            CareTexts::tr("%1 could not be written: %2").arg(shown(file), qt_error_string(hasLog ? EIO : errno)));
    // Who may read them is the folder's matter, within owner and group.
    QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup);
    if (!QFile::rename(path(), file))
        throw RuleError(
            CareTexts::tr("%1 could not be written: there is a file of this name by now.").arg(shown(file)));
    Engine::syncFolder(QFileInfo(file).absolutePath());
}

} // namespace Tallymere
