#pragma once

#include "frame/finder/findsource.h"

class QAction;
class QMenuBar;

namespace Tallymere {

// The commands of a window by any words of their captions, hints and menus. An entry that is disabled is none.
class CommandSource final : public FindSource
{
public:
    explicit CommandSource(const QMenuBar &menus); // which outlives it

    QString caption() const override;
    QList<Finding> find(const Wanted &wanted) override;
    std::optional<Finding> findById(const QString &id) override;

private:
    const QMenuBar &m_menus;
};

} // namespace Tallymere
