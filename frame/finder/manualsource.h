#pragma once

#include "frame/finder/findsource.h"
#include "frame/manualcollection.h"

#include <memory>
#include <QUrl>

namespace Tallymere {

// The pages of the manual and their sections by any words of their titles, and by the words of its index. The collection
// is opened once, when something is looked for the first time.
class ManualSource final : public FindSource
{
public:
    using ShowPage = std::function<void(const QUrl &page)>;
    explicit ManualSource(ShowPage show);

    QString caption() const override;
    QList<Finding> find(const Wanted &wanted) override;
    std::optional<Finding> findById(const QString &id) override;
    bool isReading() const override { return !m_read; }
    bool readOn(qint64 milliseconds) override;

private:
    Finding finding(const ManualCollection::Topic &topic, TextMatch::Rank rank) const;

    ShowPage m_show;
    std::unique_ptr<ManualCollection> m_manual; // while it is read
    QList<ManualCollection::Topic> m_topics;
    bool m_read = false;
};

} // namespace Tallymere
