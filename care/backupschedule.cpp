#include "care/backupschedule.h"

#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "care/backup.h"
#include "care/texts.h"
#include "engine/store/database.h"
#include "engine/store/session.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr auto dayFormat = "yyyy-MM-dd"_L1;
constexpr auto suffix = ".sqlite"_L1;
} // namespace

BackupSchedule BackupSchedule::readFrom(const SettingsStore &settings)
{
    return {.isOn = settings.value(Settings::dailyBackup, Settings::BackupDaily),
            .folder = settings.value(Settings::dailyBackup, Settings::BackupFolder),
            .kept = std::clamp(settings.value(Settings::dailyBackup, Settings::BackupsKept), 1, mostKept)};
}

bool BackupSchedule::keepIn(SettingsStore &settings) const
{
    return settings.setValue(Settings::dailyBackup, Settings::BackupDaily, isOn)
        && settings.setValue(Settings::dailyBackup, Settings::BackupFolder, folder)
        && settings.setValue(Settings::dailyBackup, Settings::BackupsKept, kept);
}

void BackupSchedule::require() const
{
    if (!isOn)
        return;
    if (folder.isEmpty())
        throw RuleError(CareTexts::tr("Choose a folder for the daily backups."), u"folder"_s);
    if (!QFileInfo(folder).isDir())
        throw RuleError(CareTexts::tr("There is no folder %1.").arg(QDir::toNativeSeparators(folder)), u"folder"_s);
}

DailyBackups::DailyBackups(Engine::Database &database, const QString &folder)
    : m_folder(folder)
    , m_stem("tallymere-daily-"_L1 + database.identity() + u'-')
{
}

QString DailyBackups::fileOf(QDate day) const
{
    return QDir(m_folder).filePath(m_stem + day.toString(dayFormat) + suffix);
}

bool DailyBackups::isMade(QDate day) const { return QFileInfo::exists(fileOf(day)); }

QStringList DailyBackups::surplus(QDate day, int kept) const
{
    QStringList made;
    const QStringList names = QDir(m_folder).entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        if (!name.startsWith(m_stem) || !name.endsWith(suffix))
            continue;
        const QDate of = QDate::fromString(name.sliced(m_stem.size()).chopped(suffix.size()), dayFormat.toString());
        const QString file = of.isValid() ? fileOf(of) : QString();
        if (of.isValid() && of <= day && QFileInfo(file).fileName() == name)
            made << file;
    }
    made.sort();
    return made.first(std::max<qsizetype>(made.size() - kept, 0));
}

void backUpDaily(Engine::Database &database, const BackupSchedule &schedule, Progress &progress)
{
    schedule.require();
    const QDate today = database.session().today();
    const DailyBackups backups(database, schedule.folder);
    backUp(database, backups.fileOf(today), progress);
    for (const QString &file : backups.surplus(today, schedule.kept))
        if (!QFile::remove(file))
            throw RuleError(CareTexts::tr("The backup was made, but the older one %1 could not be removed.")
                                .arg(QDir::toNativeSeparators(file)));
}

} // namespace Tallymere
