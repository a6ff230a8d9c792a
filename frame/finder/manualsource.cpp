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

QList<Finding> ManualSource::find(const Wanted &wanted)
{
    QList<Finding> findings;
    for (const ManualCollection::Topic &topic : m_topics) {
        const TextMatch::Rank rank = wanted.match.rank({}, topic.title);
        if (rank == TextMatch::Rank::None)
            continue;
        findings.append({.id = topic.place.toString(),
                         .title = topic.title,
                         .detail = topic.page,
                         .glyph = Glyph::Help,
                         .rank = rank,
                         .open = [show = m_show, place = topic.place] { show(place); }});
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
