#include "host/moduleloader.h"

#include "host/texts.h"
#include "plgint/classregistry.h"
#include "plgint/moduleidentity.h"

#include <QDateTime>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString moduleFile(const QString &given, const QString &executableFolder)
{
    if (!given.isEmpty())
        return given;
    const QString named = qEnvironmentVariable("TALLYMERE_MODULE");
    if (!named.isEmpty())
        return named;
    const QString beside = executableFolder + "/plgTallymere.so"_L1; // as they are installed
    return QFileInfo(beside).isFile() ? beside
                                      : executableFolder + "/../lib/plgTallymere.so"_L1; // as they are built
}

namespace {

// What the file says of itself is read without loading it, so that nothing of a strange file runs. Empty: it is the module of
// this host's release. Both share classes that only one release agrees on.
QString whyNotOurs(const QString &file)
{
    const QJsonObject told = QPluginLoader(file).metaData();
    if (told.value("IID"_L1).toString() != TALLYMERE_MODULE_IID ""_L1)
        return HostTexts::tr("%1 is not an inventory module.").arg(file);
    const QString release = told.value("MetaData"_L1).toObject().value("release"_L1).toString();
    if (release != TALLYMERE_VERSION ""_L1)
        return HostTexts::tr(
                   "The inventory module %1 is of release %2, and this program of %3. Install both of one release.")
            .arg(file, release, QStringLiteral(TALLYMERE_VERSION));
    return {};
}

} // namespace

ModuleLoader::ModuleLoader() = default;

ModuleLoader::~ModuleLoader() { unload(); }

QString ModuleLoader::load(const QString &file, QWidget *hostWindow, QMenu *menu)
{
    unload();
    const QFileInfo info(file);
    if (!info.isFile())
        return HostTexts::tr("The inventory module cannot be loaded: there is no file %1.")
            .arg(info.absoluteFilePath());
    if (const QString why = whyNotOurs(info.absoluteFilePath()); !why.isEmpty())
        return why;

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
