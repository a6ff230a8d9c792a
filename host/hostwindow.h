#pragma once

#include "host/moduleloader.h"
#include "plgint/plgint.h"

#include <memory>
#include <QMainWindow>

namespace Tallymere {

namespace Ui {
class HostWindow;
}

class SettingsStore;

// The main window of the reference host: who works with which company, and the menu with the inventory module.
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

private:
    bool isHeld() const; // a modal window stands over this one; it comes to the front
    void reload();
    void showCompany();
    void showModule(const QString &problem);
    void showLinks();
    void editDataOptions();
    void useSampleCompany();

    SettingsStore &m_settings;
    QString m_user;
    QString m_moduleFile;
    int m_references = 0;
    std::unique_ptr<Ui::HostWindow> m_ui;
    ModuleLoader m_loader;
};

} // namespace Tallymere
