#include "controls/screens/dialogscreen.h"

#include "controls/fields/comboboxname.h"
#include "controls/fields/datepicker.h"
#include "controls/fields/radiochoice.h"
#include "controls/windows/dialogover.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/lineentry.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

namespace Tallymere {

DialogScreen::DialogScreen(ScreenContext &context, QWidget *parent)
    : QDialog(parent)
    , m_context(context)
    , m_guard(
          context.prompts, [this](const QString &column) { return focusColumn(column); }, this)
{
    setModal(true);
    keepComboBoxNames(*this);
}

QWidget *DialogScreen::widgetOfColumn(const QString &) const { return nullptr; }

QWidget *DialogScreen::focusColumn(const QString &column)
{
    QWidget *widget = widgetOfColumn(column);
    if (widget)
        putCursorInto(*widget);
    return widget;
}

void DialogScreen::putCursorInto(QWidget &widget)
{
    widget.setFocus();
    if (auto *edit = qobject_cast<QLineEdit *>(&widget))
        edit->selectAll();
}

void DialogScreen::takeOneLines()
{
    const QList<QLineEdit *> edits = findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (!edit->validator() && edit->inputMask().isEmpty()) {
            takeOneLine(*edit, edit->maxLength(), edit->objectName(),
                        [this](const QString &text) { m_guard.run([&] { m_context.prompts.warn(text); }); });
        }
    }
}

// The button that Enter presses where none is the default one: that with the cursor, as in the main window.
static QPushButton *buttonForEnter(const QDialog &dialog, const QKeyEvent &key)
{
    if (!isEnter(key))
        return nullptr;
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    const bool hasDefault = std::any_of(buttons.begin(), buttons.end(), [](const QPushButton *button) {
        return button->isDefault() || button->autoDefault();
    });
    return hasDefault ? nullptr : qobject_cast<QPushButton *>(dialog.focusWidget());
}

bool DialogScreen::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        if (QPushButton *button = buttonForEnter(*this, static_cast<QKeyEvent &>(*event))) {
            button->click();
            return true;
        }
    }
    if (event->type() == QEvent::Polish && !std::exchange(m_scaled, true)) {
        scaleForm(this);
        leadTabToChosen(*this);
        takeOneLines();
        for (DatePicker *date : findChildren<DatePicker *>())
            date->keepRefused();
    }
    return QDialog::event(event);
}

// Nothing is done by the date that was there before when another one has been typed that nobody can read.
bool DialogScreen::areDatesSettled()
{
    const QList<DatePicker *> dates = findChildren<DatePicker *>();
    for (DatePicker *date : dates) {
        const std::exception_ptr failure = date->isEnabled() ? Guard::attempt([date] { date->settle(); }) : nullptr;
        if (!failure)
            continue;
        FieldMark::refuse(*date);
        putCursorInto(*date);
        m_guard.report(failure);
        return false;
    }
    return true;
}

// A dialog that closes right after a message over it leaves some window managers without a window that would be next.
void DialogScreen::done(int result)
{
    if (isHeldByDialog(this) || (result == Accepted && !areDatesSettled()))
        return;
    QWidget *opener = QApplication::applicationState() == Qt::ApplicationActive ? parentWidget() : nullptr;
    QDialog::done(result);
    if (opener && opener->window()->isVisible())
        opener->window()->activateWindow();
}

void DialogScreen::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    showCursorAlways(*this);
    if (event->spontaneous())
        return;
    fitToScreen(this);
    m_guard.run([this] { showStep(); });
}

} // namespace Tallymere
