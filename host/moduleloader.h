#pragma once

#include "plgint/plgint.h"

#include <memory>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QLibrary;
class QMenu;

namespace Tallymere {

// The file in which the module is looked for: the given one, else the one named by TALLYMERE_MODULE, else the one
// that is installed beside the host, else the one that is built with it ("../lib" beside the executable).
QString moduleFile(const QString &given, const QString &executableFolder);

// Loads the inventory module at run time and links it with the host's window.
class ModuleLoader
{
public:
    ModuleLoader();
    ~ModuleLoader(); // unloads
    ModuleLoader(const ModuleLoader &) = delete;
    ModuleLoader &operator=(const ModuleLoader &) = delete;

    // Loads the file, makes the module's main form and lets it add its item to the menu. The window must implement
    // IHostInterface and outlive the loader, or the module must be unloaded before. Returns what went wrong, or an
    // empty text; then nothing stays loaded.
    QString load(const QString &file, QWidget *hostWindow, QMenu *menu);
    void unload();
    bool isLoaded() const { return m_form != nullptr; }

    // Makes another form of the module, or null when it has none of that class.
    QWidget *createForm(const QString &className, QWidget *parent) const;

private:
    using EntryPoint = void (*)();

    QString makeForm(QWidget *hostWindow, QMenu *menu);

    std::unique_ptr<QLibrary> m_library;
    EntryPoint m_done = nullptr; // set once the module has been started
    QPointer<QWidget> m_form;
    InterfaceRef<IPlugIn> m_plugIn;
};

} // namespace Tallymere
