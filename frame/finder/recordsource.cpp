#include "frame/finder/recordsource.h"

#include "base/rights.h"
#include "data/datamodule.h"
#include "data/fields.h"
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
    return findings;
}

Finding RecordSource::finding(const NameIndex::Found &found)
{
    const QString name = found.name.isEmpty() ? found.number : found.name;
    std::function<void()> card;
    if (m_kind.keyField == Fields::ItemID && m_context.showItem)
        card = [this, key = static_cast<int>(found.key)] { m_context.showItem(key); };
    return {.id = m_kind.table + u'/' + QString::number(found.key),
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
