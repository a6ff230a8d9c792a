#pragma once

#include "frame/finder/findsource.h"

class QAction;
class QMenuBar;
class QObject;

namespace Tallymere {

// The commands of a window by any words of their captions, hints and menus. An entry that is disabled is none.
class CommandSource final : public FindSource
{
public:
    // Of the menus, and of actions that stand in none of them; both outlive it.
    CommandSource(const QMenuBar &menus, const QObject &actions);

    QString caption() const override;
    QList<Finding> find(const Wanted &wanted) override;
    std::optional<Finding> findById(const QString &id) override;

private:
    const QMenuBar &m_menus;
    const QObject &m_actions;
};

} // namespace Tallymere
