#include "frame/helpdesk.h"

#include "base/prompts.h"
#include "controls/windows/screenmetrics.h"
#include "frame/helpwindow.h"

#include <optional>
#include <QApplication>
#include <QKeyEvent>

namespace Tallymere {

namespace {

// The window that a window was opened from.
const QWidget *behind(const QWidget *window)
{
    const QWidget *parent = window->parentWidget();
    return parent ? parent->window() : nullptr;
}

} // namespace

HelpDesk::HelpDesk(QWidget &owner, SettingsStore &settings, Prompts &prompts)
    : QObject(&owner)
    , m_owner(owner)
    , m_settings(settings)
    , m_prompts(prompts)
{
    qApp->installEventFilter(this);
}

bool HelpDesk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const QWidget *window = static_cast<QWidget *>(watched)->window();
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || !serves(window))
        return false;
    if (!key->isAutoRepeat())
        showTopicOf(window);
    return true;
}

bool HelpDesk::serves(const QWidget *window) const
{
    while (window && window != &m_owner)
        window = behind(window);
    return window;
}

void HelpDesk::showTopicOf(const QWidget *window)
{
    QStringList names;
    for (; window; window = window == &m_owner ? nullptr : behind(window))
        names << window->objectName();
    while (QWidget *popup = QApplication::activePopupWidget()) // it would keep the keys
        popup->close();
    HelpWindow *help = this->window();
    if (!help)
        return;
    QUrl page;
    for (const QString &name : names) {
        if (page.isEmpty())
            page = help->manual().pageOf(name);
    }
    help->showPage(page.isEmpty() ? help->manual().firstPage() : page);
}

void HelpDesk::showTopic(const QString &screenName)
{
    if (HelpWindow *help = window())
        help->showPage(help->manual().pageOf(screenName));
}

void HelpDesk::showPage(const QUrl &page)
{
    if (HelpWindow *help = window())
        help->showPage(page);
}

void HelpDesk::showContents()
{
    if (HelpWindow *help = window())
        help->showContents();
}

HelpWindow *HelpDesk::window()
{
    if (m_window)
        return m_window;
    std::optional<WaitCursor> hourglass(std::in_place);
    auto manual = std::make_unique<ManualCollection>();
    if (manual->isOpen()) {
        m_window = new HelpWindow(std::move(manual), m_settings, m_owner);
    } else {
        hourglass.reset();
        m_prompts.error(manual->failure());
    }
    return m_window;
}

} // namespace Tallymere
