#include "host/hostwindow.h"

#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "controls/screens/besidework.h"
#include "controls/windows/icons.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "host/aboutbox.h"
#include "host/books/newbooks.h"
#include "host/company.h"
#include "ui_hostwindow.h"

#include <functional>
#include <QApplication>
#include <QCloseEvent>
#include <QCommandLinkButton>
#include <QDialog>
#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Tallymere {

HostWindow::HostWindow(SettingsStore &settings, QString user, QString moduleFile, QWidget *parent)
    : QMainWindow(parent)
    , m_settings(settings)
    , m_user(std::move(user))
    , m_moduleFile(std::move(moduleFile))
    , m_ui(std::make_unique<Ui::HostWindow>())
    , m_guard(m_prompts, {}, this)
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
    for (const auto &[action, form] :
         {std::pair(m_ui->actionBackUp, u"TfrmBackUp"_s), std::pair(m_ui->actionCheckBooks, u"TfrmCheckBooks"_s)})
        connectWhenFree(action, &QAction::triggered, [form = form](HostWindow *self) { self->openForm(form); });
    connectWhenFree(m_ui->actionReloadModule, &QAction::triggered, &HostWindow::reload);
    connectWhenFree(m_ui->actionUnloadModule, &QAction::triggered, &HostWindow::unloadModule);
    connectWhenFree(m_ui->actionExit, &QAction::triggered, &QWidget::close);
    connectWhenFree(m_ui->actionAbout, &QAction::triggered, &HostWindow::showAbout);
    connectWhenFree(m_ui->linkModule, &QAbstractButton::clicked, &HostWindow::openModule);
    connectWhenFree(m_ui->linkDataOptions, &QAbstractButton::clicked, &HostWindow::editDataOptions);
    connectWhenFree(m_ui->linkReloadModule, &QAbstractButton::clicked, &HostWindow::reload);
    connectWhenFree(m_ui->linkAbout, &QAbstractButton::clicked, &HostWindow::showAbout);
    using Purpose = CompanyBox::Purpose;
    const auto connectCompany = [&](const QAction *action, const QAbstractButton *link, auto handler) {
        connectWhenFree(action, &QAction::triggered, handler);
        connectWhenFree(link, &QAbstractButton::clicked, handler);
    };
    connectCompany(m_ui->actionNewCompany, m_ui->linkNewCompany,
                   [](HostWindow *self) { self->askForCompany(Purpose::New); });
    connectCompany(m_ui->actionOpenCompany, m_ui->linkOpenCompany,
                   [](HostWindow *self) { self->askForCompany(Purpose::Open); });
    connectCompany(m_ui->actionSampleCompany, m_ui->linkSample, &HostWindow::trySampleCompany);
    connectCompany(m_ui->actionRestore, m_ui->linkRestore, &HostWindow::restoreBackup);

    giveSigns();
    reload();
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

void HostWindow::closeEvent(QCloseEvent *event) { event->setAccepted(!isHeld() && makeDailyBackup()); }

// A module that has none to make lets the window close.
bool HostWindow::makeDailyBackup()
{
    const QPointer<QDialog> backup = createDialog(u"TfrmDailyBackup"_s);
    return !backup || backup->exec() == QDialog::Accepted;
}

void HostWindow::keyPressEvent(QKeyEvent *event)
{
    if (!pressButton(*this, *event))
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
    m_ui->labelDatabase->setText(company.defined ? company.location : tr("None has been chosen."));
    m_ui->labelProblem->setText(company.problem);
    m_ui->labelProblem->setVisible(!company.problem.isEmpty());
    showLinksFor(company);
}

// To a company where there is none; to another one as well where this one cannot be opened.
void HostWindow::showLinksFor(const Company &company)
{
    const bool isNone = company.books == Company::Books::None;
    const bool isUsable = company.books == Company::Books::There && company.problem.isEmpty();
    for (QWidget *link : {m_ui->linkNewCompany, m_ui->linkSample})
        link->setVisible(isNone);
    for (QWidget *link : {m_ui->linkOpenCompany, m_ui->linkRestore})
        link->setVisible(!isUsable);
    m_ui->linkModule->setVisible(!isNone);
    m_ui->menuInventory->setEnabled(!isNone && m_loader.isLoaded());
    m_ui->linkReloadModule->setVisible(!isNone || !m_loader.isLoaded());
    for (QWidget *link : {m_ui->linkDataOptions, m_ui->linkAbout})
        link->setVisible(isUsable);
    (isNone ? m_ui->linkNewCompany : m_ui->linkModule)->setFocus();
}

void HostWindow::showModule(const QString &problem)
{
    const bool loaded = m_loader.isLoaded();
    m_ui->labelModule->setText(loaded ? tr("Loaded.") : problem);
    m_ui->menuInventory->setEnabled(loaded);
    m_ui->actionDataOptions->setEnabled(loaded);
    for (QAction *action : {m_ui->actionBackUp, m_ui->actionRestore, m_ui->actionCheckBooks})
        action->setEnabled(loaded);
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
    m_ui->linkRestore->setEnabled(m_loader.isLoaded());
    m_ui->linkReloadModule->setText(m_ui->actionReloadModule->text());
}

// In place of the style's arrow, which is the same on each of them.
void HostWindow::giveSigns()
{
    constexpr int size = 24; // design pixels
    const std::tuple<QCommandLinkButton *, QAction *, Glyph> signs[] = {
        {m_ui->linkNewCompany, m_ui->actionNewCompany, Glyph::New},
        {m_ui->linkOpenCompany, m_ui->actionOpenCompany, Glyph::Organization},
        {m_ui->linkSample, m_ui->actionSampleCompany, Glyph::Find},
        {m_ui->linkRestore, m_ui->actionRestore, Glyph::Synchronize},
        {m_ui->linkModule, nullptr, Glyph::Item},
        {m_ui->linkDataOptions, m_ui->actionDataOptions, Glyph::Settings},
        {m_ui->linkReloadModule, m_ui->actionReloadModule, Glyph::Refresh},
        {m_ui->linkAbout, m_ui->actionAbout, Glyph::Information}};
    for (const auto &[link, action, glyph] : signs) {
        setGlyph(*link, glyph);
        link->setIconSize({scaled(this, size), scaled(this, size)});
        if (action)
            setGlyph(*action, glyph);
    }
    setGlyph(*m_ui->actionBackUp, Glyph::Save);
    setGlyph(*m_ui->actionCheckBooks, Glyph::Post);
    setGlyph(*m_ui->actionExit, Glyph::Close);
}

// The least heights of their own leave out what the links say of themselves, which takes more lines in a narrow window.
void HostWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    const QMargins margins = m_ui->layoutPage->contentsMargins();
    for (QWidget *link : m_ui->centralwidget->findChildren<QCommandLinkButton *>())
        link->setMinimumHeight(link->heightForWidth(width() - margins.left() - margins.right()));
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

void HostWindow::showAbout() { AboutBox(m_settings, m_loader.isLoaded(), this).exec(); }

// One of the module's, which has said why where there is none.
QDialog *HostWindow::createDialog(const QString &className)
{
    auto *dialog = qobject_cast<QDialog *>(m_loader.createForm(className, this));
    if (dialog)
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

void HostWindow::openForm(const QString &className)
{
    if (QDialog *dialog = createDialog(className))
        dialog->exec();
}

void HostWindow::askForCompany(CompanyBox::Purpose purpose)
{
    CompanyBox box(purpose, m_prompts, m_user, this);
    if (box.exec() == QDialog::Accepted)
        use(box.place());
}

// The one that the host's initialization file names, else one of the user's own, which is made where it is missing.
void HostWindow::trySampleCompany()
{
    m_guard.run([this] {
        BooksPlace place{.folder = sampleCompanyFolder(QCoreApplication::applicationDirPath())};
        if (place.folder.isEmpty())
            place.folder = sampleCompanyHome();
        if (readCompany(place).books == Company::Books::None)
            workBeside(this, tr("Making the sample company in %1").arg(QDir::toNativeSeparators(place.folder)),
                       [&](Progress &progress) { makeSampleBooks(place.folder, m_user, progress); });
        use(place);
    });
}

// From then on the settings name what has been restored, if that is what the user wants.
void HostWindow::restoreBackup()
{
    const QPointer<QDialog> restore = createDialog(u"TfrmRestore"_s);
    if (restore && restore->exec() == QDialog::Accepted)
        reload();
}

// The inventory is opened at once, as its books are what has been asked for.
void HostWindow::use(const BooksPlace &place)
{
    m_guard.run([&] {
        if (!useBooks(m_settings, place))
            throw RuleError(keyErrorText());
        reload();
        QTimer::singleShot(0, this, &HostWindow::openModule);
    });
}

} // namespace Tallymere
