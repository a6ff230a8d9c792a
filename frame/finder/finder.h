#pragma once

#include "data/lastchoices.h"
#include "frame/finder/findsource.h"

#include <memory>
#include <vector>

namespace Tallymere {

struct FindGroup
{
    QString caption;
    QList<Finding> findings;
};

// The search over everything: asks its sources, puts the group with the best answer first, and keeps for the user what he
// has opened last.
class Finder
{
public:
    static constexpr int mostOfAGroup = 6;
    static constexpr int mostKept = 20;

    void keepIn(const LastChoices &memory) { m_memory.emplace(memory); } // without it nothing is kept

    void add(std::unique_ptr<FindSource> source) { m_sources.push_back(std::move(source)); }

    // Of a text without words what has been opened last, as far as it is there.
    QList<FindGroup> find(const QString &typed);
    void open(const Finding &finding); // raises what its opening raises

    void readAnew();
    bool isReading() const;
    bool readOn(qint64 milliseconds);

private:
    QStringList keptIds() const;
    void readRecent();

    std::vector<std::unique_ptr<FindSource>> m_sources;
    std::optional<LastChoices> m_memory;
    QList<Finding> m_recent; // the last first
    bool m_recentIsOld = true; // as long as it has not been read anew
};

} // namespace Tallymere
