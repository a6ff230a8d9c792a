#include "frame/finder/finderdesk.h"

#include "controls/windows/dialogover.h"
#include "frame/finder/finderbox.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

namespace Tallymere {

FinderDesk::FinderDesk(QWidget &owner, const Guard &guard, Fill fill)
    : QObject(&owner)
    , m_owner(owner)
    , m_guard(guard)
    , m_fill(std::move(fill))
{
    qApp->installEventFilter(this);
}

// The key is asked for as a shortcut first. Fields would take it as their own, and it is no menu's alone.
bool FinderDesk::eventFilter(QObject *watched, QEvent *event)
{
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if ((!asks && event->type() != QEvent::KeyPress) || !watched->isWidgetType())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_K || key->modifiers() != Qt::ControlModifier
        || !serves(static_cast<QWidget *>(watched)->window()))
        return false;
    event->accept();
    if (!asks && !key->isAutoRepeat())
        open();
    return true;
}

bool FinderDesk::serves(const QWidget *window) const
{
    while (window && window != &m_owner)
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window;
}

void FinderDesk::open()
{
    if (qobject_cast<const QDialog *>(QApplication::activeModalWidget()) || dialogOver(&m_owner))
        return;
    if (!m_box) {
        auto *box = new FinderBox(m_owner, m_guard);
        if (!m_fill(box->finder(), *box)) {
            delete box;
            return;
        }
        m_box = box;
    }
    const QWidget *active = QApplication::activeWindow();
    while (QWidget *popup = QApplication::activePopupWidget()) // it would keep the keys
        popup->close();
    m_box->openOver(active && active != m_box ? *active : m_owner);
}

} // namespace Tallymere
