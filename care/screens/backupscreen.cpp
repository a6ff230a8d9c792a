#include "care/screens/backupscreen.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "care/backup.h"
#include "care/backupschedule.h"
#include "care/screens/backupfile.h"
#include "controls/screens/besidework.h"
#include "data/datamodule.h"
#include "data/lastbackup.h"
#include "ui_backupscreen.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmBackUp::TfrmBackUp(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmBackUp>())
{
    m_ui->setupUi(this);
    m_ui->btnBackUp->setEnabled(bool(context.chooseFileToSave));
    connectGuarded(m_ui->btnBackUp, &QPushButton::clicked, this, &TfrmBackUp::btnBackUpClick);
    connectGuarded(m_ui->btnChooseFolder, &QPushButton::clicked, this, &TfrmBackUp::chooseFolder);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmBackUp::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    showLast();
    showSchedule();
}

TfrmBackUp::~TfrmBackUp() = default;

void TfrmBackUp::showLast()
{
    const LastBackup last = lastBackup(context().data.databaseTallymere());
    if (!last.made.isValid())
        return m_ui->lblLast->setText(tr("No backup of this database is known."));
    const QString made = u"%1, %2"_s.arg(dateText(last.made.date()), last.made.toString(u"HH:mm"_s));
    m_ui->lblLast->setText(last.by.isEmpty() ? made : tr("%1, by %2").arg(made, last.by));
}

void TfrmBackUp::showSchedule()
{
    m_ui->grpDaily->setEnabled(context().settings);
    m_ui->editKept->setMaximum(BackupSchedule::mostKept);
    const BackupSchedule schedule =
        context().settings ? BackupSchedule::readFrom(*context().settings) : BackupSchedule();
    m_ui->chkDaily->setChecked(schedule.isOn);
    m_ui->editFolder->setText(QDir::toNativeSeparators(schedule.folder));
    m_ui->editKept->setValue(schedule.kept);
}

void TfrmBackUp::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for Daily Backups"), m_ui->editFolder->text());
    if (!folder.isEmpty())
        m_ui->editFolder->setText(QDir::toNativeSeparators(folder));
}

QWidget *TfrmBackUp::widgetOfColumn(const QString &) const { return m_ui->editFolder; }

void TfrmBackUp::btnOKClick()
{
    const QString folder = QDir::fromNativeSeparators(m_ui->editFolder->text().trimmed());
    const BackupSchedule schedule{.isOn = m_ui->chkDaily->isChecked(),
                                  .folder = folder.isEmpty() ? folder : QDir(folder).absolutePath(),
                                  .kept = m_ui->editKept->value()};
    schedule.require();
    if (context().settings && !schedule.keepIn(*context().settings))
        throw RuleError(keyErrorText());
    accept();
}

void TfrmBackUp::btnBackUpClick()
{
    const QString file = chooseBackupFile(context(), this, tr("Back Up"), u"backup"_s);
    if (file.isEmpty())
        return;
    Engine::Database &books = context().data.databaseTallymere();
    workBeside(this, tr("Backing up into %1").arg(QDir::toNativeSeparators(file)), books,
               [&file](Engine::Database &database, Progress &progress) { backUp(database, file, progress); });
    showLast();
    context().prompts.inform(tr("%1 holds a backup of %2, which has been verified.")
                                 .arg(QDir::toNativeSeparators(file), books.connection().location()));
}

} // namespace Tallymere
