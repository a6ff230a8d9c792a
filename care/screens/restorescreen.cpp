#include "care/screens/restorescreen.h"

#include "base/connectiondecision.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "base/stores.h"
#include "care/backup.h"
#include "controls/fields/comboboxname.h"
#include "controls/fields/radiochoice.h"
#include "controls/screens/besidework.h"
#include "controls/windows/screenmetrics.h"
#include "engine/store/database.h"
#include "ui_restorescreen.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmRestore::TfrmRestore(Prompts &prompts, QString user, QWidget *parent, SettingsStore *settings)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TfrmRestore>())
    , m_user(std::move(user))
    , m_settings(settings)
    , m_guard(prompts, Guard::editsOf(*this), this)
{
    m_ui->setupUi(this);
    keepComboBoxNames(*this);
    scaleForm(this);
    leadTabToChosen(*this);
    for (const QRadioButton *target : {m_ui->radioFolder, m_ui->radioServer})
        connect(target, &QRadioButton::toggled, this, &TfrmRestore::showTarget);
    connectGuarded(m_ui->btnChooseFile, &QPushButton::clicked, this, &TfrmRestore::chooseFile);
    connectGuarded(m_ui->btnChooseFolder, &QPushButton::clicked, this, &TfrmRestore::chooseFolder);
    connectGuarded(m_ui->btnRestore, &QPushButton::clicked, this, &TfrmRestore::btnRestoreClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    showTarget();
}

TfrmRestore::~TfrmRestore() = default;

void TfrmRestore::showTarget()
{
    const bool isFolder = m_ui->radioFolder->isChecked();
    m_ui->editFolder->setEnabled(isFolder);
    m_ui->btnChooseFolder->setEnabled(isFolder);
    m_ui->editServer->setEnabled(!isFolder);
    m_ui->cboLink->setEnabled(!isFolder);
}

void TfrmRestore::chooseFile()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Backup to Restore"),
                                                      QFileInfo(m_ui->editFile->text()).absolutePath(),
                                                      tr("Backups (*.sqlite);;All files (*)"));
    if (!file.isEmpty())
        m_ui->editFile->setText(QDir::toNativeSeparators(file));
}

void TfrmRestore::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder to Restore Into"), m_ui->editFolder->text());
    if (!folder.isEmpty())
        m_ui->editFolder->setText(QDir::toNativeSeparators(folder));
}

QString TfrmRestore::required(const QLineEdit &field, QStringView column, const QString &refusal) const
{
    const QString text = field.text().trimmed();
    if (text.isEmpty())
        throw RuleError(refusal, column.toString());
    return text;
}

void TfrmRestore::btnRestoreClick()
{
    const QString file =
        required(*m_ui->editFile, RestoreColumn::File, tr("Choose the backup that is to be restored."));
    const bool isFolder = m_ui->radioFolder->isChecked();
    const QStringList older = isFolder ? restoreInFolder(file) : restoreOnServer(file);
    const QString target = isFolder ? m_ui->editFolder->text() : tr("the server %1").arg(m_ui->editServer->text());
    tellOf(target, older);
    accept();
}

void TfrmRestore::tellOf(const QString &target, const QStringList &older)
{
    const QString age = older.isEmpty() ? QString()
                                        : u"\n\n"_s
            + tr("It is of an older release. When it is opened first these are brought up to date: %1.")
                  .arg(older.join(u", "_s));
    if (!m_settings)
        return m_guard.prompts().inform(
            tr("The backup has been restored into %1. To work with it, choose that in Data Options.").arg(target)
            + age);
    const QString question =
        tr("The backup has been restored into %1.").arg(target) + age + u"\n\n"_s + tr("Work with it from now on?");
    if (m_guard.prompts().confirm(Question::YesNo, question) && !useBooks(*m_settings, place()))
        throw RuleError(keyErrorText());
}

BooksPlace TfrmRestore::place() const
{
    if (m_ui->radioFolder->isChecked())
        return {.folder = m_ui->editFolder->text().trimmed()};
    BooksPlace server{.folder = {}, .server = m_ui->editServer->text().trimmed()};
    takeSetting(m_ui->cboLink->currentText(), server.link);
    return server;
}

QStringList TfrmRestore::restoreInFolder(const QString &file)
{
    const QString folder =
        required(*m_ui->editFolder, RestoreColumn::Folder, tr("Choose an empty folder to restore into."));
    if (!QFileInfo(folder).isDir())
        throw RuleError(tr("There is no folder %1.").arg(folder), RestoreColumn::Folder.toString());
    QStringList older;
    workBeside(this, tr("Restoring into %1").arg(folder), [&](Progress &progress) {
        older = restoreIntoFolder(file, QDir(folder).absolutePath(), m_user, progress);
    });
    return older;
}

QStringList TfrmRestore::restoreOnServer(const QString &file)
{
    const QString address =
        required(*m_ui->editServer, u"Server", tr("Enter the address of the server to restore into."));
    Engine::Session session(u"SessionRestore"_s, bothStores());
    session.type = Engine::SessionType::Remote;
    session.remoteAddress = address;
    takeSetting(m_ui->cboLink->currentText(), session.remoteLink);
    useServerAccount(session);
    Engine::Database database(session, databaseName);
    database.remoteName = databaseName;
    database.createIfMissing = true;
    QStringList older;
    workBeside(this, tr("Restoring into the server %1").arg(address),
               [&](Progress &progress) { older = restoreInto(database, file, m_user, progress); });
    return older;
}

} // namespace Tallymere
