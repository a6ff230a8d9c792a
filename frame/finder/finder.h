#pragma once

#include "frame/finder/findsource.h"

#include <memory>
#include <vector>

namespace Tallymere {

struct FindGroup
{
    QString caption;
    QList<Finding> findings;
};

// The search over everything: asks its sources, puts the group with the best answer first, and remembers what has been
// opened last.
class Finder
{
public:
    static constexpr int mostOfAGroup = 6;

    void add(std::unique_ptr<FindSource> source) { m_sources.push_back(std::move(source)); }

    // Of a text without words what has been opened last.
    QList<FindGroup> find(const QString &typed);
    void open(const Finding &finding); // raises what its opening raises

    void readAnew();
    bool isReading() const;
    bool readOn(qint64 milliseconds);

private:
    std::vector<std::unique_ptr<FindSource>> m_sources;
    QList<Finding> m_recent; // the last first
};

} // namespace Tallymere
