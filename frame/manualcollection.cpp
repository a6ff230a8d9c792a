#include "frame/manualcollection.h"

#include "frame/modulefolder.h"
#include "frame/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpLink>
#include <QRegularExpression>
#include <QTextDocumentFragment>

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

// The page itself, then its sections.
QList<ManualCollection::Topic> topicsOf(const QUrl &page, const QString &html)
{
    static const QRegularExpression title(u"<title>(.*?)</title>"_s);
    static const QRegularExpression section(u"<h[23]><a name=\"(.*?)\"></a>(.*?)</h"_s);
    const QString name = title.match(html).captured(1);
    QList<ManualCollection::Topic> topics{{name, {}, page}};
    for (auto found = section.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        QUrl place = page;
        place.setFragment(match.captured(1));
        topics.append({QTextDocumentFragment::fromHtml(match.captured(2)).toPlainText(), name, place});
    }
    return topics;
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

bool ManualCollection::hasIndex() const { return m_engine->indexModel()->rowCount() > 0; }

QList<ManualCollection::Topic> ManualCollection::topics() const
{
    QList<Topic> topics;
    QHash<QString, QString> titles; // of the pages, by their paths
    for (const QString &manual : m_engine->registeredDocumentations()) {
        for (const QUrl &page : m_engine->files(manual, QString(), u"html"_s)) {
            const QList<Topic> found = topicsOf(page, QString::fromUtf8(m_engine->fileData(page)));
            titles.insert(page.path(), found.constFirst().title);
            topics += found;
        }
    }
    for (const QString &word : m_engine->indexModel()->stringList()) {
        for (const QHelpLink &link : m_engine->documentsForKeyword(word))
            topics.append({word, titles.value(link.url.path()), link.url});
    }
    return topics;
}

} // namespace Tallymere
