#include "host/moduleloader.h"

#include "host/texts.h"
#include "plgint/classregistry.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString moduleFile(const QString &given, const QString &executableFolder)
{
    if (!given.isEmpty())
        return given;
    const QString named = qEnvironmentVariable("TALLYMERE_MODULE");
    if (!named.isEmpty())
        return named;
    return executableFolder + "/../lib/plgTallymere.so"_L1;
}

ModuleLoader::ModuleLoader() = default;

ModuleLoader::~ModuleLoader() { unload(); }

QString ModuleLoader::load(const QString &file, QWidget *hostWindow, QMenu *menu)
{
    unload();
    const QFileInfo info(file);
    if (!info.isFile())
        return HostTexts::tr("The inventory module cannot be loaded: there is no file %1.")
            .arg(info.absoluteFilePath());

    m_library = std::make_unique<QLibrary>(info.absoluteFilePath());
    if (!m_library->load())
        return HostTexts::tr("The inventory module cannot be loaded: %1").arg(m_library->errorString());

    const auto start = reinterpret_cast<EntryPoint>(m_library->resolve("module_init"));
    const auto done = reinterpret_cast<EntryPoint>(m_library->resolve("module_done"));
    if (!start || !done) {
        unload();
        return HostTexts::tr("%1 is not an inventory module: it lacks the entry points of one.")
            .arg(info.absoluteFilePath());
    }
    start();
    m_done = done;
    const QString problem = makeForm(hostWindow, menu);
    if (!problem.isEmpty())
        unload();
    return problem;
}

QString ModuleLoader::makeForm(QWidget *hostWindow, QMenu *menu)
{
    m_form = ClassRegistry::instance().create(u"TFormTallymereSystem"_s, hostWindow);
    if (!m_form)
        return HostTexts::tr("The module does not offer the form TFormTallymereSystem.");
    m_plugIn = InterfaceRef<IPlugIn>::of(m_form.data());
    if (!m_plugIn)
        return HostTexts::tr("The form TFormTallymereSystem cannot be driven by this host.");
    m_plugIn->init(hostWindow);
    m_plugIn->setMenu(menu);
    m_plugIn->prepareMenuDate(QDateTime::currentDateTime());
    return {};
}

void ModuleLoader::unload()
{
    m_plugIn.reset();
    delete m_form;
    if (m_done)
        m_done();
    m_done = nullptr;
    if (m_library)
        m_library->unload();
    m_library.reset();
}

QWidget *ModuleLoader::createForm(const QString &className, QWidget *parent) const
{
    return isLoaded() ? ClassRegistry::instance().create(className, parent) : nullptr;
}

} // namespace Tallymere
