#include "frame/finder/finder.h"

#include "frame/texts.h"

#include <algorithm>

namespace Tallymere {

namespace {

TextMatch::Rank bestOf(const FindGroup &group) { return group.findings.constFirst().rank; }

} // namespace

QList<FindGroup> Finder::find(const QString &typed)
{
    const Wanted wanted{typed.simplified(), TextMatch(typed), mostOfAGroup};
    QList<FindGroup> groups;
    if (wanted.match.isEmpty()) {
        readRecent();
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
    m_recentIsOld = true;
    if (!m_memory)
        return;
    QStringList ids = keptIds();
    ids.removeAll(opened.id);
    ids.prepend(opened.id);
    Choices kept;
    kept.setList(Settings::OpenedLast, QJsonArray::fromStringList(ids.mid(0, mostKept)));
    m_memory->keep(kept);
}

QStringList Finder::keptIds() const
{
    QStringList ids;
    const QJsonArray kept = m_memory ? m_memory->read().list(Settings::OpenedLast) : QJsonArray();
    for (const auto &id : kept)
        ids << id.toString();
    return ids;
}

void Finder::readRecent()
{
    if (!m_recentIsOld)
        return;
    QList<Finding> recent;
    const QStringList ids = keptIds();
    for (const QString &id : ids) {
        for (const auto &source : m_sources) {
            if (std::optional<Finding> there = source->findById(id)) {
                recent.append(*there);
                break;
            }
        }
    }
    m_recent = recent;
    m_recentIsOld = false;
}

void Finder::readAnew()
{
    m_recentIsOld = true;
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
        if (!source->isReading())
            continue;
        const bool news = source->readOn(milliseconds);
        m_recentIsOld |= news; // it may know more of what has been opened
        return news;
    }
    return false;
}

} // namespace Tallymere
