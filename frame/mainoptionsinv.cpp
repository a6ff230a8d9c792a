#include "frame/mainoptionsinv.h"

#include "base/settingsstore.h"
#include "controls/fields/comboboxname.h"
#include "controls/fields/radiochoice.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowrules.h"
#include "frame/helpdesk.h"
#include "frame/tracescope.h"
#include "ui_mainoptionsinv.h"

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
    , m_chooser(chooser ? std::move(chooser) : chooseInDialog)
    , m_ui(std::make_unique<Ui::TFormRegistryEditor>())
{
    m_ui->setupUi(this);
    resize(scaled(this, width()), scaled(this, height()));
    leadTabToChosen(*this);
    keepComboBoxNames();
    // Four groups of one to three digits.
    static const QRegularExpression address(uR"(\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3})"_s);
    m_ui->wwDBEditIPAddress->setValidator(new QRegularExpressionValidator(address, this));

    connect(m_ui->radioFileServer, &QRadioButton::toggled, this, &TFormRegistryEditor::actionModeChange);
    connect(m_ui->buttonChooseFolder, &QPushButton::clicked, this, &TFormRegistryEditor::chooseFolder);
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
}

void TFormRegistryEditor::actionModeChange()
{
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
    accept();
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

bool TFormRegistryEditor::clientServerChosen() const { return m_ui->radioClientServer->isChecked(); }

template <typename T>
void TFormRegistryEditor::save(const DatabaseSetting<T> &setting, const std::type_identity_t<T> &value)
{
    if (!m_settings.setRegString(setting, value))
        m_prompts.error(keyErrorText());
}

} // namespace Tallymere
