#pragma once

#include "base/settingsstore.h"
#include "base/stores.h"
#include "engine/store/database.h"
#include "engine/store/session.h"

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

namespace Tallymere {

// A database in a file of a folder that goes with the object, as whatever happens nothing of it shall stay.
class FileInMaking
{
public:
    // Below a folder on whose disk the file is to stay, with room for so many bytes. Throws RuleError when nothing can be
    // written there. What programs that were killed have left of theirs there is taken away first.
    FileInMaking(const QString &parent, qint64 bytes);

    QString path() const { return m_folder.filePath(databaseName + QLatin1StringView(".sqlite")); }
    QString folder() const { return m_folder.path(); }
    Engine::Database &database() { return m_database; }

    // With what another file holds. Throws RuleError.
    void fill(const QString &file);

    // Its last name, which nothing else has. What bears it is on the disk whole. Throws RuleError.
    void moveTo(const QString &file);

private:
    QTemporaryDir m_folder;
    QLockFile m_owner; // as long as the program lives
    Engine::Session m_session{QStringLiteral("copy"), bothStores()};
    Engine::Database m_database{m_session, databaseName};
};

} // namespace Tallymere
