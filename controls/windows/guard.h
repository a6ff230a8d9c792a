#pragma once

#include "base/prompts.h"

#include <exception>
#include <functional>
#include <QObject>
#include <QString>

class QWidget;

namespace Tallymere {

// The one place where what stops a handler is shown. A refusal by a rule moves the focus to the widget of the
// refused column, marks it there and shows its message in the standard error box; a silent stop moves the focus only; an error of
// the engine is shown as it stands. A rule's question that nobody else has put is put here: who says yes can enter the
// same again. Nothing gets past it into the event loop.
class Guard
{
public:
    // Moves the focus to what shows a column, and says which widget that is; null where none does.
    using Mover = std::function<QWidget *(const QString &column)>;

    static Mover editsOf(QWidget &window); // of the field of a window that is called "edit" and the column

    // Without a mover the focus stays. The window is the one that boxes come over while a handler runs.
    explicit Guard(Prompts &prompts, Mover focusColumn = {}, QWidget *window = nullptr);

    Prompts &prompts() const { return m_prompts; }

    // Runs a handler; true when it ran to its end.
    bool run(const std::function<void()> &handler) const;

    // The same for what the user asks for in the window: nothing is done while a dialog stands over it.
    bool runWhenFree(const std::function<void()> &handler) const;

    // The two halves of run(), for handlers inside an event that must not open a box: null when it ran to its end.
    static std::exception_ptr attempt(const std::function<void()> &handler);
    void report(const std::exception_ptr &failure) const;
    static void trace(const std::exception_ptr &failure); // for what the user need not know
    static bool isTellingOfTheStore(); // a box about a failed store is open, over whatever window
    static bool isRefusal(const std::exception_ptr &failure); // of what has been entered, not for want of a store
    static QString columnOf(const std::exception_ptr &failure); // that a refusal names; empty when it names none

    // Moves the focus to what shows a column; for an empty name it stays.
    QWidget *focus(const QString &column) const;

private:
    Prompts &m_prompts;
    Mover m_focusColumn;
    QWidget *m_window;
};

// Connects a signal of what the user does to a handler without arguments that runs under the receiver's guard().
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectGuarded(const Sender *sender, Signal signal, Receiver *receiver, Handler handler)
{
    return QObject::connect(sender, signal, receiver, [receiver, handler] {
        receiver->guard().runWhenFree([&] { std::invoke(handler, receiver); });
    });
}

} // namespace Tallymere
