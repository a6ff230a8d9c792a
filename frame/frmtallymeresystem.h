#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "data/readaside.h"
#include "frame/commandrunner.h"
#include "frame/globals.h"
#include "plgint/plgint.h"

#include <memory>
#include <QMainWindow>
#include <QPointer>

class QEventLoop;
class QLabel;
class QProgressBar;

namespace Tallymere {

namespace Ui {
class TFormTallymereSystem;
}

class ElidedLabel;
class Finder;
class FinderDesk;
class HelpDesk;
class ImportDesk;
class ScreenRegistry;
class SettingsStore;
class ReportHolder;
class ServerLabel;
class TfrmDialerInv;

// What the main form is given by the module; all of it outlives the form.
struct FrameServices
{
    SettingsStore &settings;
    Prompts &prompts;
    const ScreenRegistry &screens;
    bool leadsNewBooks = false; // shows the first steps when it is opened, as long as books need them
};

// The hub of the inventory system, and the module's side of the link with the host. The host makes it once, hidden;
// the menu item that it adds to the host's menu opens the system: the data modules are made at the first opening
// and stay, the window is shown modally each time.
class TFormTallymereSystem final : public QMainWindow, public IPlugIn
{
    Q_OBJECT

public:
    explicit TFormTallymereSystem(const FrameServices &services, QWidget *parent = nullptr);
    ~TFormTallymereSystem() override;

    // IPlugIn
    int addRef() override { return ++m_references; }
    int release() override { return --m_references; }
    void init(QWidget *parent) override;
    void setMenu(QMenu *&menu) override;
    void prepareMenuDate(const QDateTime &date) override;
    bool getIsModuleInstalled(const QString &moduleName) override;

    // Opens the system and returns when its window is closed. Whatever keeps it from opening is shown in the
    // standard error box.
    void formTallymereSystemShowModal();

    // A screen for the host to show by itself. Null, and the user has been told why, where the system cannot be opened.
    QWidget *makeForHost(const std::function<QWidget *(ScreenContext &, QWidget *parent)> &make, QWidget *parent);

    QString hostUser() const; // who is working, as the host says; empty without one

    // User rights. This system grants them all.
    bool securityCheck(const QString &key, const QString &name);
    // Whether the system has a current printer.
    bool printerDefined();

    // --- for the host and modules of its own: nothing here calls them (forhosts/hostcalls.cpp) ----------------------
    bool securityLogin();
    bool securityAccessible();
    // Both do nothing and succeed.
    bool connectToDatabase(const QString &first, const QString &second);
    bool copyFiles(const QString &source, const QString &destination);
    // Prints a report from its template file; the window has an empty one, "ReportHolder". A file that is not there is
    // named in the standard error box.
    void printReport(ReportHolder &report, bool showPrintDialog);
    // Enables or disables the first six entries of the first menu and every tool button of this window.
    void databaseOptionsEnabled(bool enable);
    // -----------------------------------------------------------------------------------------------------------------

    const Guard &guard() const { return m_guard; }
    TDataModuleTallymere *dataModule() const { return m_dataModule.get(); } // null before the first opening
    const QString &helpFile() const { return m_helpFile; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void createActions();
    void runCommand(const MainCommand &command);
    void connectToday();
    void leadNewBooks();
    void openToday(const QString &screen, bool waits);
    void bindControls();
    void createStatusBar();
    void holdEditsAgain(); // after the connection was lost
    void scaleSizes();
    void makeRoomForWords();
    void prepareOpening();
    void fillContext();
    bool fillFinder(Finder &finder, QWidget &window);
    void makeDialer();
    void showUser(const QString &user);
    void showModal();
    bool closeScreens(); // false when one of them stays open
    QList<QWidget *> screens() const;
    void exit1Click();
    void helpTopics1Click();
    void about1Click();

    FrameServices m_services;
    Guard m_guard;
    CommandRunner m_runner;
    std::unique_ptr<Ui::TFormTallymereSystem> m_ui;
    QObject *m_actionList;
    HelpDesk *m_help;
    FinderDesk *m_finder;
    QLabel *m_leftPane = nullptr;
    ElidedLabel *m_hintPane = nullptr;
    int m_ownWidth = 0; // that nobody but this window has given it
    QProgressBar *m_progress = nullptr;
    ServerLabel *m_serverLabel = nullptr;

    QPointer<QWidget> m_parent; // the host's window
    InterfaceRef<IHostInterface> m_host;
    QMetaObject::Connection m_parentGone;
    QList<QPointer<QAction>> m_menuItems; // in menus of the host
    int m_references = 0;

    std::unique_ptr<TDataModuleTallymere> m_dataModule;
    std::unique_ptr<TdmLookUpsInv> m_lookups;
    std::unique_ptr<ScreenContext> m_context;
    std::unique_ptr<ImportDesk> m_imports;
    QPointer<TfrmDialerInv> m_dialer; // waiting for the first phone button of this opening
    QString m_helpFile;
    QEventLoop *m_modalLoop = nullptr;
    bool m_isOpening = false; // until it has the keyboard
    ReadAside m_aside{this}; // whether there are first steps to be done
};

} // namespace Tallymere
