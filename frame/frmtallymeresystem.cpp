#include "frame/frmtallymeresystem.h"

#include "base/ruleerror.h"
#include "controls/fields/inusenotice.h"
#include "controls/screens/besidework.h"
#include "controls/windows/dialogover.h"
#include "controls/windows/elidedlabel.h"
#include "controls/windows/filechoice.h"
#include "controls/windows/icons.h"
#include "controls/windows/menukeyboard.h"
#include "controls/windows/openobject.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "controls/windows/windowrules.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "frame/aboutform.h"
#include "frame/boundaction.h"
#include "frame/finder/commandsource.h"
#include "frame/finder/documentsource.h"
#include "frame/finder/finder.h"
#include "frame/finder/finderdesk.h"
#include "frame/finder/manualsource.h"
#include "frame/finder/recordsource.h"
#include "frame/forhosts/reportholder.h"
#include "frame/helpdesk.h"
#include "frame/hostinifile.h"
#include "frame/mastermenu.h"
#include "frame/screenregistry.h"
#include "frame/serverlabel.h"
#include "frame/todaypanel.h"
#include "frame/tracescope.h"
#include "import/screens/importdesk.h"
#include "insight/firststeps.h"
#include "insight/screens/firststeps.h"
#include "insight/screens/itemcard.h"
#include "master/screens/dialerinv.h"
#include "master/screens/masterscreens.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "transactions/screens/documentscreens.h"
#include "ui_frmtallymeresystem.h"

#include <algorithm>
#include <QAction>
#include <QCloseEvent>
#include <QDateTime>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QScreen>
#include <QStatusTipEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Pauses between lock attempts without freezing the window, and without letting the user start something else.
void waitAlive(std::chrono::milliseconds pause)
{
    QEventLoop loop;
    QTimer::singleShot(pause, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

TFormTallymereSystem::TFormTallymereSystem(const FrameServices &services, QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_services(services)
    , m_guard(services.prompts)
    , m_runner(services.screens, this)
    , m_ui(std::make_unique<Ui::TFormTallymereSystem>())
    , m_actionList(new QObject(this))
    , m_help(new HelpDesk(*this, services.settings, services.prompts))
    , m_finder(new FinderDesk(*this, m_guard,
                              [this](Finder &finder, QWidget &window) { return fillFinder(finder, window); }))
{
    const TraceScope scope("TFormTallymereSystem.FormCreate");
    m_ui->setupUi(this);
    setObjectName(u"FormTallymereSystem"_s);
    FontFactor = fontFactor(this);
    auto *holder = new ReportHolder(this);
    holder->setObjectName(u"ReportHolder"_s);
    createActions();
    addMasterEntries(*m_ui->mnuEdit, *m_ui->mnuOther, *this);
    bindControls();
    createStatusBar();
    connectToday();
    leaveMenuBarWithMenus(*m_ui->MainMenu1);
    scaleSizes();
    move(0, 0);
    nameSampleCompany(QCoreApplication::applicationDirPath());
    new WindowRules(*this);
    FormTallymereSystem = this;
}

TFormTallymereSystem::~TFormTallymereSystem()
{
    // Screens hold tables of the data modules, so they go first, whatever they still have to save.
    qDeleteAll(screens());
    for (const QPointer<QAction> &item : std::as_const(m_menuItems))
        delete item;
    if (m_modalLoop)
        m_modalLoop->quit();
    // A host window that is taking this form with it is only a widget any more, and cannot be released.
    if (!dynamic_cast<const IHostInterface *>(m_parent.data()))
        m_host.abandon();
    if (FormTallymereSystem == this)
        FormTallymereSystem = nullptr;
}

void TFormTallymereSystem::init(QWidget *parent)
{
    disconnect(m_parentGone);
    m_parent = parent;
    m_host.reset();
    m_host = InterfaceRef<IHostInterface>::of(parent);
    if (parent)
        m_parentGone = connect(parent, &QObject::destroyed, this, [this] { m_host.abandon(); });
}

void TFormTallymereSystem::setMenu(QMenu *&menu)
{
    const TraceScope scope("TFormTallymereSystem.SetMenu");
    auto *item = new QAction(tr("Tallymere"), menu);
    connect(item, &QAction::triggered, this, &TFormTallymereSystem::formTallymereSystemShowModal);
    menu->addAction(item);
    m_menuItems << item;
}

void TFormTallymereSystem::prepareMenuDate(const QDateTime &) { }

bool TFormTallymereSystem::getIsModuleInstalled(const QString &moduleName) { return moduleName == "ARSystem"_L1; }

void TFormTallymereSystem::formTallymereSystemShowModal()
{
    const TraceScope scope("TFormTallymereSystem.FormTallymereSystemShowModal");
    qCDebug(trace) << "Sender" << sender() << "Self" << this << "Application" << qApp;
    if (!m_guard.run([this] { prepareOpening(); }))
        return;
    qCDebug(trace, "About to show FormTallymereSystem modally...");
    showModal();
}

QWidget *TFormTallymereSystem::makeForHost(const std::function<QWidget *(ScreenContext &, QWidget *)> &make,
                                           QWidget *parent)
{
    QWidget *made = nullptr;
    m_guard.run([&] {
        prepareOpening();
        made = make(*m_context, parent);
    });
    return made;
}

QString TFormTallymereSystem::hostUser() const
{
    QString user;
    if (m_host)
        m_host->getCurrentUser(user);
    return user;
}

void TFormTallymereSystem::prepareOpening()
{
    const WaitCursor hourglass;
    qCDebug(trace, "About to create the DataModuleTallymere...");
    if (!m_dataModule) {
        DataModuleOptions options;
        options.waitFor = waitAlive;
        options.prepareReportPrinting = []() -> std::optional<bool> {
            const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
            if (printer.isNull())
                return {};
            return printer.defaultPageSize().id() == QPageSize::A4;
        };
        options.changeBeside = [this](const QString &what, Engine::Database &database, const auto &change) {
            changeBeside(m_parent ? m_parent->window() : this, what, database, change);
        };
        options.currentUser = hostUser(); // whom the locks of the connection name
        m_dataModule = std::make_unique<TDataModuleTallymere>(m_services.settings, m_services.prompts, options);
        m_serverLabel->follow(m_dataModule->databaseTallymere());
    }
    if (!m_lookups)
        m_lookups = std::make_unique<TdmLookUpsInv>(m_dataModule->databaseTallymere());
    if (!m_context)
        fillContext();
    makeDialer();
    m_helpFile = u"HX1.hlp"_s;

    if (!m_host)
        throw RuleError(tr("The inventory system does not know who is working. The host application has opened it "
                           "without a window that names its user."));
    const QString user = hostUser();
    m_dataModule->setCurrentUser(user);
    showUser(user);
}

// It frees itself when it has been used, so each opening begins with a new one.
void TFormTallymereSystem::makeDialer()
{
    if (m_dialer && m_dialer->isVisible())
        return; // somebody is dialing
    delete m_dialer;
    m_dialer = new TfrmDialerInv(*m_context, this);
}

// The pane's text is cut rather than letting a long name push the hints out.
void TFormTallymereSystem::showUser(const QString &user)
{
    constexpr int paneWidth = 110;
    m_leftPane->setText(m_leftPane->fontMetrics().elidedText(user, Qt::ElideRight, scaled(this, paneWidth)));
    m_leftPane->setToolTip(user);
}

void TFormTallymereSystem::fillContext()
{
    m_context.reset(new ScreenContext{
        .data = *m_dataModule,
        .lookups = *m_lookups,
        .prompts = m_services.prompts,
        .printerDefined = [this] { return printerDefined(); },
        .securityCheck = [this](const QString &key, const QString &name) { return securityCheck(key, name); },
        .openScreen = [this](const QString &name) { return m_runner.open(name, *m_context); },
        .hasScreen = [this](const QString &name) { return m_services.screens.contains(name); },
        .openAnotherScreen = [this](const QString &name) { return m_runner.openAnother(name, *m_context); },
        .runAction =
            [this](const QString &name) {
                if (auto *action = m_actionList->findChild<QAction *>(name))
                    action->trigger();
            },
        .say =
            [this](const QString &text) {
                constexpr int moment = 10'000; // ms
                m_ui->RzStatusBar1->showMessage(text, moment);
            },
        .openObject = openObject,
        .settings = &m_services.settings,
        .chooseFileToSave = chooseFileToSave,
        .printList =
            [this](const QString &report, const QString &filter, const QString &order) {
                showReport(*m_context, ReportList::require(report), {.filter = filter, .order = order}, this);
            },
        .importFile = [this](const QString &kind, const QString &file,
                             QWidget *window) { return m_imports->import(kind, file, window); },
        .takeBackImport = [this](const QString &kind,
                                 QWidget *window) { return m_imports->takeBack(kind, window); },
        .saveForImport = [this](const QString &kind, const QString &caption,
                                QWidget *window) { m_imports->saveForImport(kind, caption, window); },
        .showItem = [this](int item) { showItemCard(*m_context, item, this); },
        .showHelp = [this](const QString &screenName) { m_help->showTopic(screenName); },
    });
    m_imports = std::make_unique<ImportDesk>(*m_context);
}

// In the order in which equally good answers are offered.
bool TFormTallymereSystem::fillFinder(Finder &finder, QWidget &window)
{
    if (!m_context)
        return false;
    finder.keepIn(LastChoices(Settings::finderBox, *m_dataModule, m_context->settings));
    for (const MasterScreen &screen : masterScreens())
        finder.add(std::make_unique<RecordSource>(*m_context, screen, window));
    for (const DocumentScreens &screens : documentScreens())
        finder.add(std::make_unique<DocumentSource>(*m_context, screens.kind, window));
    finder.add(std::make_unique<CommandSource>(*m_ui->MainMenu1, *m_actionList));
    finder.add(std::make_unique<ManualSource>([this](const QUrl &page) { m_help->showPage(page); }));
    return true;
}

void TFormTallymereSystem::showModal()
{
    if (m_modalLoop)
        return bringToFront(*this);
    setWindowModality(Qt::ApplicationModal);
    QEventLoop loop;
    m_modalLoop = &loop;
    const QPointer<TFormTallymereSystem> alive(this);
    bringToFront(*this);
    loop.exec();
    if (alive)
        m_modalLoop = nullptr;
}

bool TFormTallymereSystem::securityCheck(const QString &, const QString &) { return true; }

bool TFormTallymereSystem::printerDefined()
{
    const TraceScope scope("TFormTallymereSystem.PrinterDefined");
    const bool result = !QPrinterInfo::defaultPrinter().printerName().isEmpty();
    qCDebug(trace) << "result" << result;
    return result;
}

void TFormTallymereSystem::createActions()
{
    m_actionList->setObjectName(u"ActionList1"_s);
    for (const MainCommand &command : commands()) {
        auto *action = new QAction(command.caption, m_actionList);
        action->setObjectName(command.action);
        action->setStatusTip(command.hint);
        setGlyph(*action, command.glyph);
        action->setEnabled(command.job || m_runner.canRun(command));
        connect(action, &QAction::triggered, this, [this, &command] {
            if (!isHeldByDialog(this))
                m_guard.run([&] { runCommand(command); });
        });
    }
}

void TFormTallymereSystem::runCommand(const MainCommand &command)
{
    if (!m_context)
        return;
    if (command.job)
        command.job({*m_context, m_runner, *m_progress});
    else
        m_runner.run(command, *m_context);
}

void TFormTallymereSystem::bindControls()
{
    // Buttons and menu items name their action in the layout.
    const auto bindAll = [this](const auto &controls) {
        for (auto *control : controls) {
            const QString name = control->property("action").toString();
            if (auto *action = m_actionList->findChild<QAction *>(name); action && !name.isEmpty())
                bindToAction(*control, *action);
        }
    };
    bindAll(m_ui->centralwidget->findChildren<QPushButton *>());
    bindAll(findChildren<QAction *>(Qt::FindDirectChildrenOnly));
    const auto menus = findChildren<QMenu *>();
    for (QMenu *menu : menus)
        menu->setToolTipsVisible(true);

    connect(m_ui->BitBtnClose, &QPushButton::clicked, this, &QWidget::close);
    connect(m_ui->Exit1, &QAction::triggered, this, &TFormTallymereSystem::exit1Click);
    connect(m_ui->mnuFindAnything, &QAction::triggered, m_finder, &FinderDesk::open);
    connect(m_ui->HelpTopics1, &QAction::triggered, this, &TFormTallymereSystem::helpTopics1Click);
    connect(m_ui->About1, &QAction::triggered, this, &TFormTallymereSystem::about1Click);
}

void TFormTallymereSystem::connectToday()
{
    connect(m_ui->PanelToday, &TodayPanel::chosen, this, &TFormTallymereSystem::openToday);
    m_ui->PanelToday->source = [this]() -> std::optional<TodaySource> {
        if (!m_dataModule)
            return std::nullopt;
        return TodaySource{.database = m_dataModule->databaseTallymere(), .user = m_dataModule->currentUser()};
    };
}

// Unless something else has been opened meanwhile.
void TFormTallymereSystem::leadNewBooks()
{
    if (!m_services.leadsNewBooks || !m_context || !TfrmFirstSteps::isWantedAtStart(*m_context))
        return;
    const auto look = [this](Engine::Database &database) {
        const int open = openSteps(readFirstSteps(database));
        return [this, open] {
            const QList<QWidget *> others = screens();
            const bool isAlone =
                std::none_of(others.begin(), others.end(), [](auto *one) { return one->isVisible(); });
            if (open > 0 && isVisible() && isAlone && !isHeldByDialog(this))
                m_guard.run([this] { m_runner.open(u"frmFirstSteps"_s, *m_context); });
        };
    };
    m_aside.start(m_dataModule->databaseTallymere(), look, Guard::trace);
}

// By the command that leads to the screen, whose rights are asked for.
void TFormTallymereSystem::openToday(const QString &screen, bool waits)
{
    const MainCommand *command = commandTo(screen);
    if (!command || !m_context || isHeldByDialog(this))
        return;
    m_guard.run([&] {
        m_runner.run(*command, *m_context, waits ? CommandRunner::Rows::Waiting : CommandRunner::Rows::All);
    });
}

void TFormTallymereSystem::createStatusBar()
{
    m_leftPane = new QLabel(this);
    m_leftPane->setObjectName(u"RzStatusPane2"_s);
    m_leftPane->setAccessibleName(tr("User"));
    m_hintPane = new ElidedLabel(this);
    m_hintPane->setObjectName(u"RzStatusPane1"_s);
    m_hintPane->setAccessibleName(tr("Hint"));
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(u"RzProgressBar1"_s);
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(scaled(this, 90));
    m_progress->setValue(0);
    // Empty it looks like a field to type into.
    QSizePolicy kept = m_progress->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(kept);
    m_progress->hide();
    connect(m_progress, &QProgressBar::valueChanged, m_progress,
            [this](int value) { m_progress->setVisible(value > 0); });
    m_ui->RzStatusBar1->addWidget(m_leftPane);
    m_ui->RzStatusBar1->addWidget(m_hintPane, 1);
    m_serverLabel = new ServerLabel(this);
    connect(m_serverLabel, &ServerLabel::connectedAgain, m_ui->PanelToday, &TodayPanel::refresh);
    connect(m_serverLabel, &ServerLabel::connectedAgain, this, &TFormTallymereSystem::holdEditsAgain);
    m_ui->RzStatusBar1->addPermanentWidget(m_serverLabel, 3);
    m_ui->RzStatusBar1->addPermanentWidget(m_progress);
}

// Before somebody else does, and not only when they are saved.
void TFormTallymereSystem::holdEditsAgain()
{
    const QList<QWidget *> windows = screens();
    for (const QWidget *window : windows)
        for (InUseNotice *notice : window->findChildren<InUseNotice *>())
            notice->look();
}

void TFormTallymereSystem::scaleSizes()
{
    const auto buttons = m_ui->centralwidget->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setMinimumSize(scaled(this, button->minimumWidth()), scaled(this, button->minimumHeight()));
    resize(scaled(this, width()), scaled(this, height()));
    m_ownWidth = width();
}

// Some languages, with the figures of the day beside, need more than the form has. A width that its user gave it stays.
void TFormTallymereSystem::makeRoomForWords()
{
    const int words = m_ui->centralwidget->sizeHint().width();
    if (width() != m_ownWidth || words <= width())
        return;
    m_ownWidth = words;
    resize(words, height());
}

QList<QWidget *> TFormTallymereSystem::screens() const
{
    QList<QWidget *> windows = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    windows.removeIf([](const QWidget *child) { return !child->isWindow() || qobject_cast<const QMenu *>(child); });
    return windows;
}

bool TFormTallymereSystem::closeScreens()
{
    // The youngest first: what is being entered before the list that it was opened from.
    QList<QPointer<QWidget>> windows;
    for (QWidget *screen : screens())
        windows.prepend(screen);
    for (const QPointer<QWidget> &screen : windows) {
        // A hidden one (made for its post command only) has nothing to ask.
        if (screen && screen->isVisible() && !screen->close())
            return false;
    }
    // Only when all have agreed; those that free themselves when they are closed have gone or will go.
    for (QWidget *screen : screens())
        screen->deleteLater();
    return true;
}

void TFormTallymereSystem::closeEvent(QCloseEvent *event) { event->setAccepted(closeScreens()); }

void TFormTallymereSystem::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    if (m_modalLoop && !event->spontaneous()) // not when it is minimised
        m_modalLoop->quit();
}

void TFormTallymereSystem::showEvent(QShowEvent *event)
{
    const TraceScope scope("TFormTallymereSystem.FormShow");
    QMainWindow::showEvent(event);
    if (event->spontaneous())
        return;
    makeRoomForWords();
    move(screen()->availableGeometry().center() - rect().center());
    m_ui->PanelToday->refresh();
    m_isOpening = true;
    m_ui->ButtonReceiveGoods->setFocus(); // not the Close button, which had it when the window was left
}

void TFormTallymereSystem::keyPressEvent(QKeyEvent *event)
{
    if (!pressButton(*this, *event))
        QMainWindow::keyPressEvent(event);
}

bool TFormTallymereSystem::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        m_ui->PanelToday->refresh();
        if (std::exchange(m_isOpening, false))
            leadNewBooks();
    }
    if (event->type() == QEvent::LayoutRequest)
        makeRoomForWords();
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    m_hintPane->setText(static_cast<QStatusTipEvent *>(event)->tip());
    return true;
}

void TFormTallymereSystem::exit1Click() { m_ui->BitBtnClose->click(); }

void TFormTallymereSystem::helpTopics1Click() { m_help->showContents(); }

void TFormTallymereSystem::about1Click()
{
    TFormAboutTallymereSystem(m_dataModule->databaseTallymere(), this).exec();
}

} // namespace Tallymere
