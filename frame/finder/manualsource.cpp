#include "frame/finder/manualsource.h"

#include "frame/texts.h"

#include <algorithm>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Tallymere {

ManualSource::ManualSource(ShowPage show)
    : m_show(std::move(show))
{
}

QString ManualSource::caption() const { return FrameTexts::tr("Manual"); }

// Without a manual there is nothing to find in it; who asks for help is told.
bool ManualSource::readOn(qint64)
{
    if (!m_manual) {
        m_manual = std::make_unique<ManualCollection>();
        m_read = !m_manual->isOpen();
        return false;
    }
    if (!m_manual->hasIndex())
        return false;
    m_topics = m_manual->topics();
    m_manual.reset();
    m_read = true;
    return true;
}

Finding ManualSource::finding(const ManualCollection::Topic &topic, TextMatch::Rank rank) const
{
    return {.id = topic.place.toString(),
            .title = topic.title,
            .detail = topic.page,
            .glyph = Glyph::Help,
            .rank = rank,
            .open = [show = m_show, place = topic.place] { show(place); }};
}

std::optional<Finding> ManualSource::findById(const QString &id)
{
    const auto topic = std::find_if(m_topics.begin(), m_topics.end(), [&id](const ManualCollection::Topic &one) {
        return one.place.toString() == id;
    });
    return topic == m_topics.end() ? std::nullopt : std::optional(finding(*topic, TextMatch::Rank::None));
}

QList<Finding> ManualSource::find(const Wanted &wanted)
{
    QList<Finding> findings;
    for (const ManualCollection::Topic &topic : m_topics) {
        const TextMatch::Rank rank = wanted.match.rank({}, topic.title);
        if (rank == TextMatch::Rank::None)
            continue;
        findings.append(finding(topic, rank));
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &one, const Finding &other) { return one.rank < other.rank; });
    QSet<QString> seen; // a word of the index may be the title of the page
    findings.removeIf([&seen](const Finding &one) {
        const bool again = seen.contains(one.id);
        seen.insert(one.id);
        return again;
    });
    return findings.mid(0, wanted.most);
}

} // namespace Tallymere
