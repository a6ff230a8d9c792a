#include "frame/finder/recordsource.h"

#include "base/rights.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "master/barcodes.h"
#include "master/masterkind.h"
#include "master/screens/masterscreens.h"

namespace Tallymere {

RecordSource::RecordSource(ScreenContext &context, const MasterScreen &screen, QWidget &owner)
    : m_context(context)
    , m_kind(screen.kind)
    , m_records(new RecordOpener(context, {m_kind.record.screen, m_kind.list.screen, screen.makeRecord}, &owner))
    , m_names(context.data.databaseTallymere(),
              {m_kind.table, m_kind.keyField, m_kind.numberField, m_kind.nameField()})
{
}

QString RecordSource::caption() const { return m_kind.list.caption; }

QList<Finding> RecordSource::find(const Wanted &wanted)
{
    QList<Finding> findings;
    for (const NameIndex::Found &found : m_names.find(wanted.match, wanted.most))
        findings.append(finding(found));
    if (findings.isEmpty() && m_kind.keyField == Fields::ItemID)
        findings = findByCode(wanted.typed.trimmed());
    return findings;
}

// Barcodes are not among the names, and a scanner does not wait for these to be read.
QList<Finding> RecordSource::findByCode(const QString &code)
{
    if (code.isEmpty())
        return {};
    const std::optional<int> item = itemOfExactCode(m_context.data.databaseTallymere(), code);
    std::optional<NameIndex::Found> found = item ? m_names.lookUp(*item) : std::nullopt;
    if (!found)
        return {};
    found->rank = TextMatch::Rank::Number;
    return {finding(*found)};
}

std::optional<Finding> RecordSource::findById(const QString &id)
{
    const std::optional<qint64> key = keyInId(id, m_kind.table);
    const std::optional<NameIndex::Found> found = key ? m_names.lookUp(*key) : std::nullopt;
    return found ? std::optional(finding(*found)) : std::nullopt;
}

Finding RecordSource::finding(const NameIndex::Found &found)
{
    const QString name = found.name.isEmpty() ? found.number : found.name;
    std::function<void()> card;
    if (m_kind.keyField == Fields::ItemID && m_context.showItem)
        card = [this, key = static_cast<int>(found.key)] { m_context.showItem(key); };
    return {.id = recordId(m_kind.table, found.key),
            .title = name,
            .detail = found.name.isEmpty() ? QString() : found.number,
            .glyph = m_kind.command.glyph,
            .rank = found.rank,
            .open =
                [this, key = static_cast<int>(found.key), name] {
                    const Rights rights = rightsOf(m_kind.command.rights);
                    if (m_context.allows(rights.key, rights.name))
                        m_records->open(key, name);
                },
            .showCard = card};
}

} // namespace Tallymere
