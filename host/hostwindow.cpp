#include "host/hostwindow.h"

#include "host/aboutbox.h"
#include "host/company.h"
#include "ui_hostwindow.h"

#include <functional>
#include <QApplication>
#include <QCloseEvent>
#include <QCommandLinkButton>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace Tallymere {

HostWindow::HostWindow(SettingsStore &settings, QString user, QString moduleFile, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_user(std::move(user))
    , m_moduleFile(std::move(moduleFile))
    , m_ui(std::make_unique<Ui::HostWindow>())
{
    m_ui->setupUi(this);
    m_ui->labelUser->setText(m_user);
    m_ui->centralwidget->setBackgroundRole(QPalette::Base);

    const auto connectWhenFree = [this](auto *sender, auto signal, auto handler) {
        connect(sender, signal, this, [this, handler] {
            if (!isHeld())
                std::invoke(handler, this);
        });
    };
    connectWhenFree(m_ui->actionDataOptions, &QAction::triggered, &HostWindow::editDataOptions);
    connectWhenFree(m_ui->actionReloadModule, &QAction::triggered, &HostWindow::reload);
    connectWhenFree(m_ui->actionUnloadModule, &QAction::triggered, &HostWindow::unloadModule);
    connectWhenFree(m_ui->actionExit, &QAction::triggered, &QWidget::close);
    connectWhenFree(m_ui->actionAbout, &QAction::triggered, [](HostWindow *self) { AboutBox(self).exec(); });
    connectWhenFree(m_ui->linkModule, &QAbstractButton::clicked, &HostWindow::openModule);
    connectWhenFree(m_ui->linkDataOptions, &QAbstractButton::clicked, &HostWindow::editDataOptions);
    connectWhenFree(m_ui->linkReloadModule, &QAbstractButton::clicked, &HostWindow::reload);
    connectWhenFree(m_ui->linkAbout, &QAbstractButton::clicked, [](HostWindow *self) { AboutBox(self).exec(); });
    connectWhenFree(m_ui->buttonUseSample, &QPushButton::clicked, &HostWindow::useSampleCompany);

    reload();
    m_ui->linkModule->setFocus();
}

HostWindow::~HostWindow() { m_loader.unload(); }

// Keys and mouse do not reach the window then, but assistive programs do. The module must not go under what it has open.
bool HostWindow::isHeld() const
{
    QWidget *over = QApplication::activeModalWidget();
    if (over) {
        over->raise();
        over->activateWindow();
    }
    return over;
}

void HostWindow::closeEvent(QCloseEvent *event) { event->setAccepted(!isHeld()); }

void HostWindow::keyPressEvent(QKeyEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QMainWindow::keyPressEvent(event);
}

void HostWindow::loadModule() { showModule(m_loader.load(m_moduleFile, this, m_ui->menuInventory)); }

void HostWindow::reload()
{
    loadModule();
    showCompany();
}

void HostWindow::unloadModule()
{
    m_loader.unload();
    showModule(tr("Unloaded."));
}

void HostWindow::openModule()
{
    const QList<QAction *> items = m_ui->menuInventory->actions();
    if (!items.isEmpty())
        items.constFirst()->trigger();
}

void HostWindow::showCompany()
{
    const Company company = readCompany(m_settings);
    const QString name = company.name.isEmpty() ? tr("No company") : company.name;
    m_ui->labelCompany->setText(name);
    setWindowTitle(company.name.isEmpty() ? u"Corvane"_s : tr("Corvane - %1").arg(company.name));
    m_ui->labelDatabase->setText(company.defined ? company.location : tr("Not set. Choose File, Data Options..."));
    m_ui->labelProblem->setText(company.problem);
    m_ui->labelProblem->setVisible(!company.problem.isEmpty());

    const QString sample = sampleCompanyFolder(QCoreApplication::applicationDirPath());
    m_ui->panelSample->setVisible(!company.defined && !sample.isEmpty());
    m_ui->labelSample->setText(tr("A sample company is in %1.").arg(sample));
}

void HostWindow::showModule(const QString &problem)
{
    const bool loaded = m_loader.isLoaded();
    m_ui->labelModule->setText(loaded ? tr("Loaded. Choose Inventory, Tallymere.") : problem);
    m_ui->menuInventory->setEnabled(loaded);
    m_ui->actionDataOptions->setEnabled(loaded);
    m_ui->actionUnloadModule->setEnabled(loaded);
    m_ui->actionReloadModule->setText(loaded ? tr("&Reload Module") : tr("&Load Module"));
    showLinks();
}

// The module's entry is called what the module calls it in the menu.
void HostWindow::showLinks()
{
    const QList<QAction *> items = m_ui->menuInventory->actions();
    if (!items.isEmpty())
        m_ui->linkModule->setText(items.constFirst()->text());
    m_ui->linkModule->setEnabled(!items.isEmpty());
    m_ui->linkDataOptions->setEnabled(m_loader.isLoaded());
    m_ui->linkReloadModule->setText(m_ui->actionReloadModule->text());
    for (auto *link : m_ui->centralwidget->findChildren<QCommandLinkButton *>())
        link->setIcon({}); // the style's arrow says nothing
}

void HostWindow::editDataOptions()
{
    const std::unique_ptr<QWidget> form(m_loader.createForm(u"TFormRegistryEditor"_s, this));
    auto *dialog = qobject_cast<QDialog *>(form.get());
    if (!dialog || dialog->exec() != QDialog::Accepted)
        return;
    // A module that is open keeps the database it began with.
    reload();
}

void HostWindow::useSampleCompany()
{
    if (!useCompanyFolder(m_settings, sampleCompanyFolder(QCoreApplication::applicationDirPath())))
        m_ui->labelSample->setText(tr("The settings cannot be written."));
    else
        showCompany();
}

} // namespace Tallymere
