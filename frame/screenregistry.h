#pragma once

#include <functional>
#include <QHash>
#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// How the main window handles one kind of screen. What a screen does not have stays empty; a command whose screen
// lacks what the command needs is disabled.
struct ScreenKind
{
    std::function<QWidget *(ScreenContext &, QWidget *parent)> create;
    std::function<void(QWidget &)> refresh; // reads the main table (or query) again
    // Empties the filter dialog if it is open, unchecks mnuFilter and shows all records.
    std::function<void(QWidget &)> resetFilter;
    std::function<void(QWidget &)> showHandler; // what a visible screen does when it is asked for again
    std::function<void(QWidget &)> post; // mnuPostClick
};

// The screens that exist, by component name ("frmInvReceipts").
class ScreenRegistry
{
public:
    void add(const QString &name, const ScreenKind &kind) { m_kinds.insert(name, kind); }
    // Null when there is no such screen.
    const ScreenKind *find(const QString &name) const;
    bool contains(const QString &name) const { return m_kinds.contains(name); }

private:
    QHash<QString, ScreenKind> m_kinds;
};

// All screens of the product.
ScreenRegistry productScreens();

} // namespace Tallymere
