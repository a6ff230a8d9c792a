#include "care/screens/dailybackup.h"

#include "base/ruleerror.h"
#include "care/backupschedule.h"
#include "controls/screens/besidework.h"
#include "controls/windows/messageboxes.h"
#include "data/datamodule.h"
#include "engine/values/error.h"

#include <exception>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmDailyBackup::TfrmDailyBackup(ScreenContext &context, QWidget *parent)
    : QDialog(parent)
    , m_context(context)
{
    setObjectName(u"frmDailyBackup"_s);
    setWindowTitle(tr("Daily Backup"));
}

int TfrmDailyBackup::exec()
{
    if (testAttribute(Qt::WA_DeleteOnClose))
        deleteLater();
    const BoxesOver over(parentWidget());
    for (;;) {
        const QString told = failure();
        if (told.isEmpty())
            return Accepted;
        switch (m_context.prompts.choose(told, tr("&Try Again"), tr("Close &Without"))) {
        case Answer::Yes:
            continue;
        case Answer::No:
            return Accepted;
        case Answer::Cancel:
            return Rejected;
        }
    }
}

bool TfrmDailyBackup::isDue() const
{
    const BackupSchedule schedule = BackupSchedule::readFrom(*m_context.settings);
    Engine::Database &books = m_context.data.databaseTallymere();
    return schedule.isOn && !DailyBackups(books, schedule.folder).isMade(m_context.data.today());
}

QString TfrmDailyBackup::failure()
{
    try {
        if (!m_context.settings || !isDue())
            return {};
        const BackupSchedule schedule = BackupSchedule::readFrom(*m_context.settings);
        workBeside(parentWidget(), tr("Backup of today, into %1").arg(QDir::toNativeSeparators(schedule.folder)),
                   m_context.data.databaseTallymere(), [&schedule](Engine::Database &database, Progress &progress) {
                       backUpDaily(database, schedule, progress);
                   });
        return {};
    } catch (const SilentAbort &) {
        return tr("The backup of today has been cancelled.");
    } catch (const RuleError &error) {
        return tr("The backup of today: %1").arg(error.message());
    } catch (const Engine::EngineError &error) {
        return tr("The backup of today: %1").arg(error.text());
    } catch (const std::exception &error) {
        return tr("The backup of today: %1").arg(QString::fromUtf8(error.what()));
    }
}

} // namespace Tallymere
