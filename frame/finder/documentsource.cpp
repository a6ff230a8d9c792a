#include "frame/finder/documentsource.h"

#include "base/formats.h"
#include "data/datamodule.h"
#include "frame/commands.h"
#include "frame/texts.h"
#include "transactions/documents/documentkind.h"
#include "transactions/documents/documentsearch.h"
#include "transactions/screens/documentscreens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

std::unique_ptr<NameIndex> indexOfDescriptions(Engine::Database &database, const DocumentKind &kind)
{
    const std::optional<NameSource> source = descriptionsOf(kind);
    return source ? std::make_unique<NameIndex>(database, *source) : nullptr;
}

QString detailOf(const FoundDocument &document)
{
    QStringList parts{document.description, dateText(document.date),
                      document.posted ? QString() : FrameTexts::tr("not posted")};
    parts.removeAll(QString());
    return parts.join(", "_L1);
}

} // namespace

DocumentSource::DocumentSource(ScreenContext &context, const DocumentKind &kind, QWidget &owner)
    : m_context(context)
    , m_kind(kind)
    , m_kindWords(kind.oneName + u' ' + kind.entry.title.arg(QString()) + u' ' + kind.list.caption)
    , m_records(new RecordOpener(context, recordScreens(kind), &owner))
    , m_descriptions(indexOfDescriptions(context.data.databaseTallymere(), kind))
{
}

QString DocumentSource::caption() const { return m_kind.list.caption; }

void DocumentSource::readAnew()
{
    if (m_descriptions)
        m_descriptions->readAnew();
}

QString DocumentSource::numberIn(const QString &typed) const
{
    QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    words.removeIf([this](const QString &word) { return TextMatch(word).isIn(m_kindWords); });
    return words.size() == 1 ? words.constFirst() : QString();
}

QList<Finding> DocumentSource::find(const Wanted &wanted)
{
    Engine::Database &database = m_context.data.databaseTallymere();
    QList<FoundDocument> documents;
    if (const QString number = numberIn(wanted.typed); !number.isEmpty())
        documents = documentsByNumber(database, m_kind, number, wanted.most);
    const auto isThere = [&documents](qint64 key) {
        return std::any_of(documents.begin(), documents.end(),
                           [key](const FoundDocument &document) { return document.key == key; });
    };
    const QList<NameIndex::Found> described =
        m_descriptions ? m_descriptions->find(wanted.match, wanted.most) : QList<NameIndex::Found>();
    for (const NameIndex::Found &found : described) {
        if (documents.size() == wanted.most || isThere(found.key))
            continue;
        if (std::optional<FoundDocument> document = documentOfKey(database, m_kind, found.key)) {
            document->rank = found.rank;
            documents.append(*document);
        }
    }
    QList<Finding> findings;
    for (const FoundDocument &document : std::as_const(documents))
        findings.append(finding(document));
    return findings;
}

std::optional<Finding> DocumentSource::findById(const QString &id)
{
    const std::optional<qint64> key = keyInId(id, m_kind.headerTable);
    const std::optional<FoundDocument> document =
        key ? documentOfKey(m_context.data.databaseTallymere(), m_kind, *key) : std::nullopt;
    return document ? std::optional(finding(*document)) : std::nullopt;
}

Finding DocumentSource::finding(const FoundDocument &found)
{
    const MainCommand *command = commandTo(m_kind.list.screen);
    const QString title = m_kind.entry.title.arg(found.number);
    return {.id = recordId(m_kind.headerTable, found.key),
            .title = title,
            .detail = detailOf(found),
            .glyph = command ? command->glyph : Glyph::Records,
            .rank = found.rank,
            .open = [this, command, key = found.key, title] {
                if (!command || m_context.allows(command->rightsKey, command->rightsName))
                    m_records->open(key, title);
            }};
}

} // namespace Tallymere
