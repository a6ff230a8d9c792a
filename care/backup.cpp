#include "care/backup.h"

#include "base/dataversion.h"
#include "base/prompts.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "care/fileinmaking.h"
#include "care/tablecopy.h"
#include "care/texts.h"
#include "data/audit.h"
#include "data/bookplace.h"
#include "data/lastbackup.h"
#include "data/layouts.h"
#include "engine/store/dialect.h"
#include "engine/store/platform.h"
#include "engine/store/readmoment.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString shown(const QString &path) { return QDir::toNativeSeparators(path); }

QString requireNew(const QString &file) // and its folder
{
    if (file.isEmpty())
        throw RuleError(CareTexts::tr("Name the file that the backup is to be."));
    const QFileInfo target(file);
    if (target.exists() || target.isSymLink())
        throw RuleError(CareTexts::tr("%1 exists already. Choose another name.").arg(shown(file)));
    return target.absolutePath();
}

void requireSound(Engine::Database &copy, const QString &file, const std::function<void()> &step)
{
    const QStringList damage = copy.connection().damage(step);
    if (!damage.isEmpty())
        throw RuleError(CareTexts::tr("%1 is damaged: %2").arg(shown(file), damage.first()));
}

// What is said of the copy would name a file that goes again.
void requireSoundCopy(Engine::Database &copy, const std::function<void()> &step)
{
    if (!copy.connection().damage(step).isEmpty())
        throw RuleError(CareTexts::tr(
            "The books are damaged, so that no sound backup of them can be made. A check of the books "
            "tells what is damaged and what mends it."));
}

qint64 rowsIn(Engine::Connection &store, const QString &table)
{
    const Engine::StatementPtr row = store.prepare("SELECT COUNT(*) FROM "_L1 + store.dialect().name(table));
    row->next();
    return row->intAt(0);
}

// How many steps a copy takes. A file tells one for as many bytes, a server for each so many rows of a table.
int copySteps(Engine::Connection &source, Engine::SessionType type)
{
    constexpr qint64 bytesPerStep = qint64{2'000} * 4'096;
    if (type == Engine::SessionType::Local)
        return static_cast<int>(source.size() / bytesPerStep) + 1;
    qint64 steps = 1;
    for (const QString &table : source.tables())
        steps += 2 * (rowsIn(source, table) / copiedRowsPerStep);
    return static_cast<int>(steps);
}

void requireSameRows(Engine::Connection &moment, Engine::Connection &copy, const QString &file)
{
    for (const QString &table : copy.tables())
        if (rowsIn(moment, table) != rowsIn(copy, table))
            throw RuleError(CareTexts::tr("%1 does not hold all of the table %2.").arg(shown(file), table));
}

// A copy of a backup to work on. The backup itself is only read.
class OpenedBackup
{
public:
    OpenedBackup(const QString &file, const QString &folder, const std::function<void()> &step)
        : m_file(file)
        , m_copy(folder, QFileInfo(file).size())
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

    // In the copy, before anybody else can see that. Of books that had moved away it is the restored that are worked with.
    void leaveNote(const QString &user)
    {
        Engine::Database &books = m_copy.database();
        takeBooksUp(books);
        if (books.tableExists(u"History"_s))
            Tallymere::leaveNote(books,
                                 CareTexts::tr("Restored from the backup %1").arg(QFileInfo(m_file).fileName()),
                                 books.session().today(), user);
    }

    QStringList olderTables()
    {
        if (const QString text = newerReleaseText(m_copy.database(), shown(m_file)); !text.isEmpty())
            throw RuleError(text);
        QStringList older;
        QStringList missing; // which an older release had not got
        for (const Engine::TableLayout *layout : Layouts::applied()) {
            const auto stored = m_copy.database().connection().describe(layout->name);
            if (!stored) {
                missing << Layouts::titleOf(layout->name);
                continue;
            }
            for (const Engine::FieldDef &field : stored->fields)
                if (!layout->field(field.name))
                    throw RuleError(
                        CareTexts::tr("This backup is of a newer release: its table %1 has a field %2 that this "
                                      "one does not know and would take out. Restore it with that release.")
                            .arg(layout->name, field.name));
            if (m_copy.database().differs(*layout))
                older << Layouts::titleOf(layout->name);
        }
        const bool isInventory = missing.size() < static_cast<qsizetype>(Layouts::applied().size());
        if (isInventory && storedDataVersion(m_copy.database()).number < dataVersion)
            older += missing;
        return older;
    }

private:
    [[noreturn]] static void refuse(const QString &file)
    {
        throw RuleError(CareTexts::tr("%1 is no backup of a database, or it is damaged.").arg(shown(file)),
                        RestoreColumn::File.toString());
    }

    const QString m_file;
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
    const QFileInfo info(file);
    if (info.isDir())
        throw RuleError(CareTexts::tr("%1 is a folder. What is restored is one file, which a backup has made.")
                            .arg(shown(file)),
                        RestoreColumn::File.toString());
    if (!info.isFile())
        throw RuleError(CareTexts::tr("There is no file %1.").arg(shown(file)), RestoreColumn::File.toString());
}

QStringList copyInto(Engine::Database &database, const QString &file, const QString &user, Progress &progress)
{
    requireFile(file);
    progress.start(0);
    const auto step = [&progress] { progress.step(); };
    OpenedBackup backup(file, QDir::tempPath(), step);
    const QStringList older = backup.olderTables();
    backup.leaveNote(user);
    copyTables(backup.copy().database(), database, step);
    progress.finish();
    return older;
}

} // namespace

void keepDamaged(Engine::Database &database, const QString &file, Progress &progress)
{
    const QString folder = requireNew(file);
    Engine::Connection &source = database.connection();
    FileInMaking copy(folder, source.size());
    if (!source.copyTo(copy.path(), [&progress] { progress.step(); }))
        throw RuleError(CareTexts::tr("Only a database in a folder can be kept as it stands."));
    copy.moveTo(file);
}

void backUp(Engine::Database &database, const QString &file, Progress &progress)
{
    const QString folder = requireNew(file);
    progress.start(0);
    const auto step = [&progress] { progress.step(); };
    Engine::ReadMoment moment(database);
    Engine::Connection &source = moment.database().connection();
    FileInMaking copy(folder, source.size());
    progress.start(copySteps(source, database.session().type));
    if (!source.copyTo(copy.path(), step)) {
        copy.database().createIfMissing = true;
        copyTables(moment.database(), copy.database(), step);
    }
    progress.start(0);
    requireSoundCopy(copy.database(), step);
    requireSameRows(source, copy.database().connection(), file);
    moment.end();
    copy.moveTo(file);
    tellOfBackup(database);
    progress.finish();
}

QStringList restoreIntoFolder(const QString &file, const QString &folder, const QString &user, Progress &progress)
{
    requireFile(file);
    const QString target = QDir(folder).filePath(databaseName + ".sqlite"_L1);
    for (const auto suffix : {""_L1, "-wal"_L1, "-journal"_L1})
        if (QFileInfo::exists(target + suffix))
            throw RuleError(CareTexts::tr("%1 holds a database already.").arg(shown(folder)),
                            RestoreColumn::Folder.toString());
    progress.start(0);
    OpenedBackup backup(file, folder, [&progress] { progress.step(); });
    const QStringList older = backup.olderTables();
    backup.leaveNote(user);
    backup.copy().moveTo(target);
    progress.finish();
    return older;
}

QStringList restoreInto(Engine::Database &database, const QString &file, const QString &user, Progress &progress)
{
    try {
        return copyInto(database, file, user, progress);
    } catch (...) {
        if (database.isOpen())
            database.connection().unmake();
        throw;
    }
}

} // namespace Tallymere
