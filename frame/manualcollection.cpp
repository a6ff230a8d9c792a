#include "frame/manualcollection.h"

#include "frame/modulefolder.h"
#include "frame/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QHelpEngine>
#include <QHelpLink>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto manualFile = "tallymere.qch"_L1;
constexpr auto start = "start"_L1; // the identifier of the first page

// The full path: the help system takes a relative one, and then finds no page.
QString findManual()
{
    const QDir folder(moduleFolder());
    for (const QString &place : {QString(manualFile), "../lib/"_L1 + manualFile}) {
        if (const QFileInfo file(folder.filePath(place)); file.isFile())
            return file.canonicalFilePath();
    }
    return {};
}

} // namespace

ManualCollection::ManualCollection()
{
    const QString file = findManual();
    m_failure = file.isEmpty()
        ? FrameTexts::tr("The manual, %1, was not found in %2.").arg(manualFile, moduleFolder())
        : open(file);
}

ManualCollection::~ManualCollection() = default;

QString ManualCollection::open(const QString &file)
{
    m_engine = std::make_unique<QHelpEngine>(m_folder.filePath(u"manual.qhc"_s));
    m_engine->setReadOnly(false);
    if (m_folder.isValid() && m_engine->setupData() && m_engine->registerDocumentation(file))
        return {};
    return FrameTexts::tr("The manual, %1, could not be opened: %2")
        .arg(file, m_folder.isValid() ? m_engine->error() : m_folder.errorString());
}

QUrl ManualCollection::pageOf(const QString &screenName) const
{
    const QList<QHelpLink> pages = m_engine->documentsForIdentifier(screenName);
    return pages.isEmpty() ? QUrl() : pages.constFirst().url;
}

QUrl ManualCollection::firstPage() const { return pageOf(start); }

} // namespace Tallymere
