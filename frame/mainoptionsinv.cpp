#include "frame/mainoptionsinv.h"

#include "base/connectiondecision.h"
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

constexpr auto mode = "Mode"_L1;
constexpr auto alias = "Alias"_L1;
constexpr auto serverAddress = "Server IP"_L1;
constexpr auto connection = "Connection"_L1;

constexpr auto internet = "Internet"_L1;
constexpr auto lan = "LAN"_L1;

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
    const bool remote = getRegString(m_settings, mode, databaseName) == clientServerMode;
    (remote ? m_ui->radioClientServer : m_ui->radioFileServer)->setChecked(true);
    actionModeChange();
    m_ui->RzButtonEditDataPath->setText(getRegString(m_settings, alias, databaseName));
    m_ui->wwDBEditIPAddress->setText(getRegString(m_settings, serverAddress, databaseName));
    const QString link = getRegString(m_settings, connection, databaseName);
    m_ui->RzComboBoxConnectionType->setCurrentText(link == internet ? internet : lan);
}

void TFormRegistryEditor::actionModeChange()
{
    m_ui->LabelDataPath->setText(clientServerChosen() ? tr("Shared Ini Directory:") : tr("Data Location:"));
}

void TFormRegistryEditor::actionOK()
{
    const TraceScope scope("TFormRegistryEditor.ActionOKExecute");
    save(mode, clientServerChosen() ? clientServerMode : fileServerMode);
    save(alias, m_ui->RzButtonEditDataPath->text());
    save(serverAddress, m_ui->wwDBEditIPAddress->text());
    save(connection, m_ui->RzComboBoxConnectionType->currentText());
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

void TFormRegistryEditor::save(const QString &setting, const QString &value)
{
    if (!setRegString(m_settings, setting, value))
        m_prompts.error(keyErrorText());
}

} // namespace Tallymere
