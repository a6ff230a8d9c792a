#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace Engine {
class Database;
}

namespace Tallymere {

class Progress;
class SettingsStore;

// A backup a day into a folder, in which older ones make room for it. It is kept for the user.
struct BackupSchedule
{
    static constexpr int mostKept = 999;

    bool isOn = false;
    QString folder{};
    int kept = 14;

    static BackupSchedule readFrom(const SettingsStore &settings);
    bool keepIn(SettingsStore &settings) const; // false: it could not be written
    void require() const; // throws RuleError ("folder") where no backup can go
};

// The daily backups of one database in a folder, which other databases may share. They are told by their names, which hold
// what tells the database from others, and the day: whatever is called otherwise is nobody's business here.
class DailyBackups
{
public:
    DailyBackups(Engine::Database &database, const QString &folder);

    QString fileOf(QDate day) const;
    bool isMade(QDate day) const;
    // Those that are to go when so many up to a day are kept, the oldest first. Of later days there are none, unless a clock
    // was wrong; they stay.
    QStringList surplus(QDate day, int kept) const;

private:
    QString m_folder;
    QString m_stem;
};

// Makes the backup of the day, and removes what is too many then. Throws what backUp() throws, with nothing removed, and
// RuleError where one that is too many cannot be removed.
void backUpDaily(Engine::Database &database, const BackupSchedule &schedule, Progress &progress);

} // namespace Tallymere
