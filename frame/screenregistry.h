#pragma once

#include <functional>
#include <QHash>
#include <QString>
#include <QStringList>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// How the main window makes one kind of screen. One that is a CommandScreen takes part in what a command does besides
// showing it.
struct ScreenKind
{
    std::function<QWidget *(ScreenContext &, QWidget *parent)> create;
    bool posts = false; // a CommandScreen that can be told to post
};

// The screens that exist, by component name ("frmInvReceipts").
class ScreenRegistry
{
public:
    void add(const QString &name, const ScreenKind &kind) { m_kinds.insert(name, kind); }
    // Null when there is no such screen.
    const ScreenKind *find(const QString &name) const;
    bool contains(const QString &name) const { return m_kinds.contains(name); }
    QStringList names() const { return m_kinds.keys(); } // in no order

private:
    QHash<QString, ScreenKind> m_kinds;
};

// All screens of the product.
ScreenRegistry productScreens();

} // namespace Tallymere
