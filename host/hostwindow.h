#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/messageboxes.h"
#include "host/companybox.h"
#include "host/moduleloader.h"
#include "plgint/plgint.h"

#include <memory>
#include <QMainWindow>

class QDialog;

namespace Tallymere {

namespace Ui {
class HostWindow;
}

class SettingsStore;

// The main window of the reference host: who works with which company, and the menu with the inventory module. Where there is no
// company it leads to one.
class HostWindow final : public QMainWindow, public IHostInterface
{
    Q_OBJECT

public:
    HostWindow(SettingsStore &settings, QString user, QString moduleFile, QWidget *parent = nullptr);
    ~HostWindow() override; // unloads the module

    // IHostInterface
    int addRef() override { return ++m_references; }
    int release() override { return --m_references; }
    void getCurrentUser(QString &name) override { name = m_user; }

    // Loads the module again if it was loaded.
    void loadModule();
    void unloadModule();
    // The module's item in the menu; does nothing without a module.
    void openModule();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void giveSigns();
    bool isHeld() const; // a modal window stands over this one; it comes to the front
    void reload();
    void showCompany();
    void showLinksFor(const Company &company);
    void showModule(const QString &problem);
    void showLinks();
    void editDataOptions();
    void showAbout();
    QDialog *createDialog(const QString &className); // frees itself when it has been run
    void openForm(const QString &className);
    bool makeDailyBackup(); // false: the window is to stay
    void askForCompany(CompanyBox::Purpose purpose);
    void trySampleCompany();
    void restoreBackup();
    void use(const BooksPlace &place);

    SettingsStore &m_settings;
    QString m_user;
    QString m_moduleFile;
    int m_references = 0;
    std::unique_ptr<Ui::HostWindow> m_ui;
    ModuleLoader m_loader;
    MessageBoxes m_prompts;
    Guard m_guard;
};

} // namespace Tallymere
