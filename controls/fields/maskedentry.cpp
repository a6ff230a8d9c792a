#include "controls/fields/maskedentry.h"

#include "base/regionalsettings.h"
#include "controls/windows/typing.h"

#include <algorithm>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <utility>

namespace Tallymere {

MaskedEntry::MaskedEntry(QLineEdit *edit, QString mask)
    : m_edit(edit)
    , m_mask(mask.replace(u'/', RegionalSettings::system().dateSeparator))
{
    m_edit->installEventFilter(this);
}

void MaskedEntry::setActive(bool active) { m_edit->setInputMask(active ? m_mask : QString()); }

QString MaskedEntry::typedText() const
{
    const QString text = m_edit->text();
    const bool filled = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
    return filled ? text : QString();
}

bool MaskedEntry::eventFilter(QObject *, QEvent *event)
{
    if (m_edit->inputMask().isEmpty())
        return false;
    if (event->type() == QEvent::KeyPress)
        return refuses(static_cast<const QKeyEvent &>(*event));
    if (event->type() == QEvent::FocusIn) {
        focusIn(static_cast<QFocusEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        clicked(static_cast<QMouseEvent *>(event));
        return true;
    }
    return false;
}

// A line edit deletes what is selected before it finds no place for what is typed.
bool MaskedEntry::refuses(const QKeyEvent &event) const
{
    const QString typed = event.text();
    if (!isTyped(event) || !m_edit->hasSelectedText())
        return false;
    QLineEdit empty;
    empty.setInputMask(m_edit->inputMask());
    const QString before = empty.text();
    empty.setCursorPosition(m_edit->selectionStart());
    empty.insert(typed);
    return empty.text() == before;
}

void MaskedEntry::focusIn(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    const bool byKey =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    const bool selects = byKey || m_edit->hasSelectedText();
    m_clickedInto = reason == Qt::MouseFocusReason;
    m_edit->event(event);
    if (selects)
        m_edit->selectAll();
}

void MaskedEntry::clicked(QMouseEvent *event)
{
    m_edit->event(event);
    const bool clickedInto = std::exchange(m_clickedInto, false);
    if (event->button() != Qt::LeftButton || m_edit->hasSelectedText())
        return;
    const bool behind = m_edit->cursorPosition() == m_edit->displayText().size();
    if (typedText().isEmpty())
        m_edit->setCursorPosition(0);
    else if (clickedInto || behind)
        m_edit->selectAll();
}

} // namespace Tallymere
