#include "controls/windows/windowrules.h"

#include "controls/windows/dialogover.h"
#include "controls/windows/dress.h"
#include "controls/windows/icons.h"
#include "controls/windows/mnemonics.h"
#include "controls/windows/typing.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextEdit>

namespace Tallymere {

namespace {

bool takesText(const QWidget &widget)
{
    return qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget)
        || qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QPlainTextEdit *>(&widget)
        || qobject_cast<const QTextEdit *>(&widget);
}

// Qt's fields type a letter whatever is held down with it, but for Ctrl.
bool wouldTypeCommand(const QKeyEvent &key)
{
    const bool commands = key.modifiers().testFlag(Qt::AltModifier) || key.modifiers().testFlag(Qt::MetaModifier);
    return commands && isPrinted(key.text()) && !isTyped(key);
}

bool turnsPage(const QKeyEvent &key)
{
    const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    return tab && (key.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
}

QTabWidget *pagesOf(const QWidget &window)
{
    const QList<QTabWidget *> books = window.findChildren<QTabWidget *>();
    for (QTabWidget *book : books) {
        if (book->window() == &window && book->isVisible() && book->count() > 1)
            return book;
    }
    return nullptr;
}

// Where Tab comes to first; null on a page without a stop.
QWidget *firstStopOn(QWidget &page)
{
    for (QWidget *widget = page.nextInFocusChain(); widget != &page; widget = widget->nextInFocusChain()) {
        const bool stops = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy();
        if (stops && page.isAncestorOf(widget) && widget->isEnabled() && widget->isVisibleTo(&page))
            return widget;
    }
    return nullptr;
}

void turnPage(QTabWidget &book, bool forward)
{
    const int count = book.count();
    int index = book.currentIndex();
    do {
        index = (index + (forward ? 1 : count - 1)) % count;
    } while (index != book.currentIndex() && !(book.isTabEnabled(index) && book.isTabVisible(index)));
    book.setCurrentIndex(index);
    QWidget *stop = firstStopOn(*book.currentWidget());
    if (!stop)
        stop = &book;
    stop->setFocus(Qt::TabFocusReason);
}

} // namespace

WindowRules::WindowRules(QWidget &owner)
    : QObject(&owner)
    , m_owner(owner)
{
    qApp->installEventFilter(this);
}

bool WindowRules::serves(const QWidget &window) const
{
    const QWidget *owner = &window;
    while (owner && owner != &m_owner)
        owner = owner->parentWidget();
    return owner;
}

bool WindowRules::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if ((type != QEvent::KeyPress && type != QEvent::Close && type != QEvent::Polish) || !watched->isWidgetType())
        return false;
    auto &widget = *static_cast<QWidget *>(watched);
    if (!serves(*widget.window()) || (type != QEvent::KeyPress && !widget.isWindow()))
        return false;
    if (type == QEvent::KeyPress)
        return takeKey(widget, *static_cast<QKeyEvent *>(event));
    if (type == QEvent::Close)
        return takeClose(widget, *event);
    if (const auto *menu = qobject_cast<const QMenu *>(&widget)) {
        giveLetters(*menu);
    } else {
        giveLetters(widget);
        dress(widget);
    }
    giveGlyphs(widget);
    return false;
}

bool WindowRules::takeClose(const QWidget &window, QEvent &close)
{
    if (!isHeldByDialog(&window))
        return false;
    close.ignore();
    return true;
}

bool WindowRules::takeKey(const QWidget &receiver, QKeyEvent &key)
{
    if (wouldTypeCommand(key) && takesText(receiver)) {
        key.ignore(); // it may mean something to the window
        return true;
    }
    QTabWidget *book = turnsPage(key) ? pagesOf(*receiver.window()) : nullptr;
    if (!book)
        return false;
    turnPage(*book, key.key() == Qt::Key_Tab && !key.modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

} // namespace Tallymere
