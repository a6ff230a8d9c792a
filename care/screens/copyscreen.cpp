#include "care/screens/copyscreen.h"

#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "care/bookcopy.h"
#include "controls/fields/comboboxname.h"
#include "controls/fields/radiochoice.h"
#include "controls/screens/besidework.h"
#include "controls/windows/screenmetrics.h"
#include "ui_copyscreen.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmCopyBooks::TfrmCopyBooks(const SettingsStore &settings, Prompts &prompts, QString user, BookAddress from,
                             QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TfrmCopyBooks>())
    , m_settings(settings)
    , m_user(std::move(user))
    , m_from(std::move(from))
    , m_guard(prompts, Guard::editsOf(*this), this)
{
    m_ui->setupUi(this);
    keepComboBoxNames(*this);
    scaleForm(this);
    leadTabToChosen(*this);
    m_ui->lblSource->setText(m_from.folder.isEmpty() ? tr("the server %1").arg(m_from.server)
                                                     : QDir::toNativeSeparators(m_from.folder));
    // Most go from the one to the other.
    (m_from.folder.isEmpty() ? m_ui->radioFolder : m_ui->radioServer)->setChecked(true);
    m_ui->cboLink->setCurrentText(settingText(m_settings.value(Settings::Connection)));
    for (const QRadioButton *target : {m_ui->radioFolder, m_ui->radioServer})
        connect(target, &QRadioButton::toggled, this, &TfrmCopyBooks::showTarget);
    connectGuarded(m_ui->btnChooseFolder, &QPushButton::clicked, this, &TfrmCopyBooks::chooseFolder);
    connectGuarded(m_ui->btnCopy, &QPushButton::clicked, this, &TfrmCopyBooks::btnCopyClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    showTarget();
    (m_from.folder.isEmpty() ? m_ui->editFolder : m_ui->editServer)->setFocus();
}

TfrmCopyBooks::~TfrmCopyBooks() = default;

QString TfrmCopyBooks::link() const { return m_ui->cboLink->currentText(); }

void TfrmCopyBooks::showTarget()
{
    const bool isFolder = m_ui->radioFolder->isChecked();
    m_ui->editFolder->setEnabled(isFolder);
    m_ui->btnChooseFolder->setEnabled(isFolder);
    m_ui->editServer->setEnabled(!isFolder);
    m_ui->cboLink->setEnabled(!isFolder);
}

void TfrmCopyBooks::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder to Copy Into"), m_ui->editFolder->text());
    if (!folder.isEmpty())
        m_ui->editFolder->setText(QDir::toNativeSeparators(folder));
}

BookAddress TfrmCopyBooks::target() const
{
    if (m_ui->radioFolder->isChecked()) {
        const QString folder = QDir::fromNativeSeparators(m_ui->editFolder->text().trimmed());
        if (folder.isEmpty())
            throw RuleError(tr("Choose a folder to copy into."), u"Folder"_s);
        return {.folder = QDir(folder).absolutePath()};
    }
    const QString server = m_ui->editServer->text().trimmed();
    if (server.isEmpty())
        throw RuleError(tr("Enter the address of the server to copy onto."), u"Server"_s);
    return {.server = server};
}

void TfrmCopyBooks::btnCopyClick()
{
    const BookAddress address = target();
    const bool moves = m_ui->chkMove->isChecked();
    if (moves
        && !guard().prompts().confirm(Question::Warning,
                                      tr("From then on nobody can change anything where the books are now, "
                                         "whatever window is open. Nobody may have a "
                                         "document open at that moment. Move them?")))
        return;
    BookSite from(m_from, m_settings, m_user);
    BookSite to(address, m_settings, m_user);
    if (!address.server.isEmpty())
        takeSetting(m_ui->cboLink->currentText(), to.database().session().remoteLink);
    m_ui->memoTold->clear();
    QStringList told;
    workBeside(this, moves ? tr("Moving the books") : tr("Copying the books"), [&](Progress &progress) {
        from.database().connection();
        to.mayMake();
        copyBooks(from.database(), to.database(), moves ? Afterwards::Moved : Afterwards::GoOn, progress,
                  [&told](const QString &line) { told << line; });
    });
    m_ui->memoTold->setPlainText(told.join(u'\n'));
    m_copied = address;
    m_ui->btnCopy->setEnabled(false);
    m_ui->btnCancel->setText(tr("Close"));
    m_ui->btnCancel->setDefault(true);
    m_ui->btnCancel->setFocus();
    const QString there = to.database().connection().location();
    guard().prompts().inform(moves ? tr("The books have moved to %1, and have been verified.").arg(there)
                                   : tr("%1 holds a copy of the books, which has been verified.").arg(there));
}

} // namespace Tallymere
