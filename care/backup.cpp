#include "care/backup.h"

#include "base/prompts.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "base/stores.h"
#include "care/tablecopy.h"
#include "care/texts.h"
#include "data/lastbackup.h"
#include "data/layouts.h"
#include "engine/store/dialect.h"
#include "engine/store/platform.h"
#include "engine/store/readmoment.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString shown(const QString &path) { return QDir::toNativeSeparators(path); }

// A database in a file of a folder that goes with the object, as whatever happens nothing of it shall stay.
class FileInMaking
{
public:
    explicit FileInMaking(const QString &parent)
        : m_folder(parent + u"/.copy-XXXXXX"_s)
    {
        if (!m_folder.isValid())
            throw RuleError(
                CareTexts::tr("Nothing can be written in %1: %2").arg(shown(parent), m_folder.errorString()));
        m_session.type = Engine::SessionType::Local;
        m_database.directory = m_folder.path();
    }

    QString path() const { return m_folder.filePath(databaseName + ".sqlite"_L1); }
    Engine::Database &database() { return m_database; }

    void fill(const QString &file)
    {
        if (!QFile::copy(file, path()))
            throw RuleError(CareTexts::tr("%1 cannot be copied into %2. Is there room on the disk?")
                                .arg(shown(file), shown(m_folder.path())));
    }

    // Its last name, which nothing else has.
    void moveTo(const QString &file)
    {
        m_database.close();
        // Who may read them is the folder's matter, within owner and group.
        QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup);
        if (!QFile::rename(path(), file))
            throw RuleError(
                CareTexts::tr("%1 could not be written: there is a file of this name by now.").arg(shown(file)));
        Engine::syncFolder(QFileInfo(file).absolutePath());
    }

private:
    QTemporaryDir m_folder;
    Engine::Session m_session{u"copy"_s, bothStores()};
    Engine::Database m_database{m_session, databaseName};
};

void requireRoom(const QString &folder, qint64 bytes)
{
    const qint64 room = QStorageInfo(folder).bytesAvailable();
    constexpr qint64 mega = 1'000'000;
    if (room >= 0 && room < bytes)
        throw RuleError(CareTexts::tr("The disk of %1 has %2 MB left, and %3 MB are needed.")
                            .arg(shown(folder), QString::number(room / mega), QString::number(bytes / mega + 1)));
}

void requireSound(Engine::Database &copy, const QString &file, const std::function<void()> &step)
{
    const QStringList damage = copy.connection().damage(step);
    if (!damage.isEmpty())
        throw RuleError(CareTexts::tr("%1 is damaged: %2").arg(shown(file), damage.first()));
}

qint64 rowsIn(Engine::Connection &store, const QString &table)
{
    const Engine::StatementPtr row = store.prepare("SELECT COUNT(*) FROM "_L1 + store.dialect().name(table));
    row->next();
    return row->intAt(0);
}

void requireSameRows(Engine::Connection &moment, Engine::Connection &copy, const QString &file)
{
    for (const QString &table : moment.tables())
        if (rowsIn(moment, table) != rowsIn(copy, table))
            throw RuleError(CareTexts::tr("%1 does not hold all of the table %2.").arg(shown(file), table));
}

// A copy of a backup to work on. The backup itself is only read.
class OpenedBackup
{
public:
    OpenedBackup(const QString &file, const QString &folder, const std::function<void()> &step)
        : m_copy(folder)
    {
        m_copy.fill(file);
        try {
            requireSound(m_copy.database(), file, step);
            if (!m_copy.database().tableExists(u"Config"_s))
                refuse(file);
        } catch (const Engine::EngineError &error) {
            if (error.code() != Engine::ErrorCode::NotADatabase && error.code() != Engine::ErrorCode::Corrupt)
                throw;
            refuse(file);
        }
    }

    FileInMaking &copy() { return m_copy; }

    QStringList olderTables()
    {
        QStringList older;
        for (const Engine::TableLayout *layout : Layouts::applied()) {
            const auto stored = m_copy.database().connection().describe(layout->name);
            if (!stored)
                continue;
            for (const Engine::FieldDef &field : stored->fields)
                if (!layout->field(field.name))
                    throw RuleError(
                        CareTexts::tr("This backup is of a newer release: its table %1 has a field %2 that this "
                                      "one does not know and would take out. Restore it with that release.")
                            .arg(layout->name, field.name));
            if (m_copy.database().differs(*layout))
                older << Layouts::titleOf(layout->name);
        }
        return older;
    }

private:
    [[noreturn]] static void refuse(const QString &file)
    {
        throw RuleError(CareTexts::tr("%1 is no backup of a database, or it is damaged.").arg(shown(file)));
    }

    FileInMaking m_copy;
};

// The backup is there, whether or not the database can be told so: it may be read only, or its disk full.
void tellOfBackup(Engine::Database &database)
{
    try {
        rememberBackup(database);
    } catch (const Engine::EngineError &) { // the next one will be remembered
    }
}

void requireFile(const QString &file)
{
    if (!QFileInfo(file).isFile())
        throw RuleError(CareTexts::tr("There is no file %1.").arg(shown(file)));
}

} // namespace

void backUp(Engine::Database &database, const QString &file, Progress &progress)
{
    const QFileInfo target(file);
    if (target.exists() || target.isSymLink())
        throw RuleError(CareTexts::tr("%1 exists already. Choose another name.").arg(shown(file)));
    const QString folder = target.absolutePath();
    progress.start(0);
    const auto step = [&progress] { progress.step(); };
    Engine::ReadMoment moment(database);
    Engine::Connection &source = moment.database().connection();
    requireRoom(folder, source.size());
    FileInMaking copy(folder);
    if (!source.copyTo(copy.path(), step)) {
        copy.database().createIfMissing = true;
        copyTables(moment.database(), copy.database(), step);
    }
    requireSound(copy.database(), file, step);
    requireSameRows(source, copy.database().connection(), file);
    moment.end();
    copy.moveTo(file);
    tellOfBackup(database);
    progress.finish();
}

QStringList restoreIntoFolder(const QString &file, const QString &folder, Progress &progress)
{
    requireFile(file);
    const QString target = QDir(folder).filePath(databaseName + ".sqlite"_L1);
    for (const auto suffix : {""_L1, "-wal"_L1, "-journal"_L1})
        if (QFileInfo::exists(target + suffix))
            throw RuleError(CareTexts::tr("%1 holds a database already.").arg(shown(folder)));
    requireRoom(folder, QFileInfo(file).size());
    progress.start(0);
    OpenedBackup backup(file, folder, [&progress] { progress.step(); });
    const QStringList older = backup.olderTables();
    backup.copy().moveTo(target);
    progress.finish();
    return older;
}

QStringList restoreInto(Engine::Database &database, const QString &file, Progress &progress)
{
    requireFile(file);
    requireRoom(QDir::tempPath(), QFileInfo(file).size());
    progress.start(0);
    const auto step = [&progress] { progress.step(); };
    OpenedBackup backup(file, QDir::tempPath(), step);
    const QStringList older = backup.olderTables();
    copyTables(backup.copy().database(), database, step);
    progress.finish();
    return older;
}

} // namespace Tallymere
