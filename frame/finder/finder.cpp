#include "frame/finder/finder.h"

#include "frame/texts.h"

#include <algorithm>

namespace Tallymere {

namespace {

constexpr int mostRecent = 8;

TextMatch::Rank bestOf(const FindGroup &group) { return group.findings.constFirst().rank; }

} // namespace

QList<FindGroup> Finder::find(const QString &typed)
{
    const Wanted wanted{typed.simplified(), TextMatch(typed), mostOfAGroup};
    QList<FindGroup> groups;
    if (wanted.match.isEmpty()) {
        if (!m_recent.isEmpty())
            groups.append({FrameTexts::tr("Opened last"), m_recent});
        return groups;
    }
    for (const auto &source : m_sources) {
        QList<Finding> findings = source->find(wanted);
        if (!findings.isEmpty())
            groups.append({source->caption(), std::move(findings)});
    }
    std::stable_sort(groups.begin(), groups.end(),
                     [](const FindGroup &one, const FindGroup &other) { return bestOf(one) < bestOf(other); });
    return groups;
}

void Finder::open(const Finding &finding)
{
    const Finding opened = finding; // it may be one of the list
    opened.open();
    m_recent.removeIf([&opened](const Finding &one) { return one.id == opened.id; });
    m_recent.prepend(opened);
    if (m_recent.size() > mostRecent)
        m_recent.removeLast();
}

void Finder::readAnew()
{
    for (const auto &source : m_sources)
        source->readAnew();
}

bool Finder::isReading() const
{
    return std::any_of(m_sources.begin(), m_sources.end(), [](const auto &source) { return source->isReading(); });
}

bool Finder::readOn(qint64 milliseconds)
{
    for (const auto &source : m_sources) {
        if (source->isReading())
            return source->readOn(milliseconds);
    }
    return false;
}

} // namespace Tallymere
