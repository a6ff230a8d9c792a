#include "frame/mainoptionsinv.h"

#include "base/language.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "care/bookcopy.h"
#include "care/screens/copyscreen.h"
#include "controls/fields/comboboxname.h"
#include "controls/fields/radiochoice.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowrules.h"
#include "data/bookplace.h"
#include "frame/helpdesk.h"
#include "frame/tracescope.h"
#include "ui_mainoptionsinv.h"

#include <algorithm>
#include <QFileDialog>
#include <QRegularExpressionValidator>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString chooseInDialog(QWidget *parent, const QString &current)
{
    return QFileDialog::getExistingDirectory(parent, TFormRegistryEditor::tr("Select Folder"), current);
}

} // namespace

TFormRegistryEditor::TFormRegistryEditor(SettingsStore &settings, Prompts &prompts, QWidget *parent,
                                         FolderChooser chooser)
    : QDialog(parent)
    , m_settings(settings)
    , m_prompts(prompts)
    , m_guard(
          prompts, [](const QString &) -> QWidget * { return nullptr; }, this)
    , m_chooser(chooser ? std::move(chooser) : chooseInDialog)
    , m_ui(std::make_unique<Ui::TFormRegistryEditor>())
{
    m_ui->setupUi(this);
    keepComboBoxNames(*this);
    resize(scaled(this, width()), scaled(this, height()));
    for (const Language &language : languages())
        m_ui->cboLanguage->addItem(language.name, language.code);
    leadTabToChosen(*this);
    // Four groups of one to three digits, for each of the servers that stand in for each other.
    static const QRegularExpression address(
        uR"(\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3}(,\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3})*)"_s);
    m_ui->wwDBEditIPAddress->setValidator(new QRegularExpressionValidator(address, this));

    connect(m_ui->radioFileServer, &QRadioButton::toggled, this, &TFormRegistryEditor::actionModeChange);
    connect(m_ui->buttonChooseFolder, &QPushButton::clicked, this, &TFormRegistryEditor::chooseFolder);
    connectGuarded(m_ui->btnCopyBooks, &QPushButton::clicked, this, &TFormRegistryEditor::btnCopyBooksClick);
    connectGuarded(m_ui->btnTakeUp, &QPushButton::clicked, this, &TFormRegistryEditor::btnTakeUpClick);
    connect(m_ui->BitBtnOK, &QPushButton::clicked, this, &TFormRegistryEditor::actionOK);
    connect(m_ui->BitBtnCancel, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->buttonChooseFolder->setFixedWidth(scaled(this, 32));
    m_ui->ButtonDeleteSettings->hide();
    new HelpDesk(*this, settings, prompts);
    new WindowRules(*this);
}

TFormRegistryEditor::~TFormRegistryEditor() = default;

void TFormRegistryEditor::formShow()
{
    const TraceScope scope("TFormRegistryEditor.FormShow");
    const bool remote = m_settings.value(Settings::Mode) == Engine::SessionType::Remote;
    (remote ? m_ui->radioClientServer : m_ui->radioFileServer)->setChecked(true);
    actionModeChange();
    m_ui->RzButtonEditDataPath->setText(m_settings.value(Settings::Alias));
    m_ui->wwDBEditIPAddress->setText(m_settings.value(Settings::ServerAddress));
    m_ui->RzComboBoxConnectionType->setCurrentText(settingText(m_settings.value(Settings::Connection)));
    m_ui->chkReadStandby->setChecked(m_settings.value(Settings::ReadsFromStandby));
    const int language =
        m_ui->cboLanguage->findData(m_settings.value(Settings::languageSection, Settings::ChosenLanguage));
    m_ui->cboLanguage->setCurrentIndex(std::max(language, 0));
    m_ui->chkDefuseFormulas->setChecked(m_settings.value(Settings::savingSection, Settings::DefusesFormulas));
}

void TFormRegistryEditor::actionModeChange()
{
    m_ui->chkReadStandby->setEnabled(clientServerChosen());
    m_ui->LabelDataPath->setText(clientServerChosen() ? tr("Shared Ini Directory:") : tr("Data Location:"));
}

void TFormRegistryEditor::actionOK()
{
    const TraceScope scope("TFormRegistryEditor.ActionOKExecute");
    Engine::LinkType link = Settings::Connection.byDefault;
    takeSetting(m_ui->RzComboBoxConnectionType->currentText(), link);
    save(Settings::Mode, clientServerChosen() ? Engine::SessionType::Remote : Engine::SessionType::Local);
    save(Settings::Alias, m_ui->RzButtonEditDataPath->text());
    save(Settings::ServerAddress, m_ui->wwDBEditIPAddress->text());
    save(Settings::Connection, link);
    if (const bool reads = m_ui->chkReadStandby->isChecked(); reads != m_settings.value(Settings::ReadsFromStandby))
        save(Settings::ReadsFromStandby, reads);
    if (const bool defuses = m_ui->chkDefuseFormulas->isChecked();
        defuses != m_settings.value(Settings::savingSection, Settings::DefusesFormulas))
        m_settings.setValue(Settings::savingSection, Settings::DefusesFormulas, defuses);
    saveLanguage(m_ui->cboLanguage->currentData().toString());
    accept();
}

// What is on the screen keeps the language that it was made in.
void TFormRegistryEditor::saveLanguage(const QString &code)
{
    if (code == m_settings.value(Settings::languageSection, Settings::ChosenLanguage))
        return;
    if (m_settings.setValue(Settings::languageSection, Settings::ChosenLanguage, code))
        m_prompts.inform(tr("The language changes when the program is started next."));
    else
        m_prompts.error(keyErrorText());
}

void TFormRegistryEditor::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        formShow();
    QDialog::showEvent(event);
}

void TFormRegistryEditor::chooseFolder()
{
    const QString folder = m_chooser(this, m_ui->RzButtonEditDataPath->text());
    if (!folder.isEmpty())
        m_ui->RzButtonEditDataPath->setText(folder);
}

BookAddress TFormRegistryEditor::shownPlace() const
{
    const QString server = m_ui->wwDBEditIPAddress->text();
    const QString folder = m_ui->RzButtonEditDataPath->text();
    if (clientServerChosen() ? server.isEmpty() : folder.isEmpty())
        throw RuleError(tr("Choose first where the books are."));
    return clientServerChosen() ? BookAddress{.server = server} : BookAddress{.folder = folder};
}

// What has been copied is shown as the place to work with, which OK takes and Cancel leaves.
void TFormRegistryEditor::btnCopyBooksClick()
{
    TfrmCopyBooks copy(m_settings, m_prompts, user, shownPlace(), this);
    new HelpDesk(copy, m_settings, m_prompts);
    new WindowRules(copy);
    copy.exec();
    const BookAddress place = copy.copied();
    if (place.isEmpty()
        || !m_prompts.confirm(Question::YesNo,
                              tr("Work with the books there from now on? OK in the data options saves that.")))
        return;
    (place.folder.isEmpty() ? m_ui->radioClientServer : m_ui->radioFileServer)->setChecked(true);
    if (!place.folder.isEmpty())
        return m_ui->RzButtonEditDataPath->setText(place.folder);
    m_ui->wwDBEditIPAddress->setText(place.server);
    m_ui->RzComboBoxConnectionType->setCurrentText(copy.link());
}

void TFormRegistryEditor::btnTakeUpClick()
{
    BookSite site(shownPlace(), m_settings, user);
    const auto moved = movedBooks(site.database());
    const QString here = site.database().connection().location();
    if (!moved)
        throw RuleError(tr("The books in %1 have not moved.").arg(here));
    if (!m_prompts.confirm(Question::Warning,
                           tr("%1\n\nTaken up again they are another set of books than those there: what is "
                              "entered in the one is not in the other. Take them up again?")
                               .arg(moved->text(here))))
        return;
    takeUpAgain(site.database(), user);
    m_prompts.inform(tr("The books in %1 can be changed again.").arg(here));
}

bool TFormRegistryEditor::clientServerChosen() const { return m_ui->radioClientServer->isChecked(); }

template <typename T>
void TFormRegistryEditor::save(const DatabaseSetting<T> &setting, const std::type_identity_t<T> &value)
{
    if (!m_settings.setRegString(setting, value))
        m_prompts.error(keyErrorText());
}

} // namespace Tallymere
