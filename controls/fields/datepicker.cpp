#include "controls/fields/datepicker.h"

#include "base/ruleerror.h"
#include "base/typeddate.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/icons.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int yearDigits = 4; // that are shown
} // namespace

DatePicker::DatePicker(QWidget *parent)
    : QLineEdit(parent)
{
    auto *open = new QAction(tr("Calendar"), this);
    setGlyph(*open, Glyph::Calendar);
    addAction(open, QLineEdit::TrailingPosition);
    connect(open, &QAction::triggered, this, &DatePicker::showCalendar);
    connect(this, &QLineEdit::editingFinished, this, &DatePicker::takeText);
}

void DatePicker::setDate(QDate date)
{
    const QDate taken = m_latest.isValid() ? std::min(date, m_latest) : date;
    const bool changed = std::exchange(m_date, taken) != taken;
    showDate();
    if (changed)
        Q_EMIT dateChanged();
}

void DatePicker::showDate()
{
    setText(m_date.isValid() ? RegionalSettings::system().shortDate(m_date, yearDigits) : QString());
}

void DatePicker::takeText()
{
    if (!isModified())
        return;
    try {
        settle();
    } catch (const RuleError &error) {
        if (m_keepsRefused)
            FieldMark::refuse(*this);
        else
            showDate();
        Q_EMIT refused(error.message());
    }
}

void DatePicker::settle()
{
    if (!isModified())
        return;
    take(typedDate());
    Q_EMIT taken();
}

QDate DatePicker::typedDate() const
{
    const QString typed = text().trimmed();
    if (m_isOptional && typed.isEmpty())
        return {};
    const RegionalSettings &settings = RegionalSettings::system();
    const QDate date = date2000(typed, settings, m_today, yearDigits);
    if (m_latest.isValid() && date > m_latest)
        throw RuleError(tr("The latest date is %1").arg(settings.shortDate(m_latest, yearDigits)));
    return date;
}

void DatePicker::take(QDate date)
{
    const QDate before = m_date;
    setDate(date);
    if (m_date != before && m_date.isValid() && m_today.isValid() && isMoreThanAYearAway(m_date, m_today))
        Q_EMIT distantDate(m_date, before);
}

void DatePicker::keyPressEvent(QKeyEvent *event)
{
    const bool up = event->key() == Qt::Key_Up;
    if (!up && event->key() != Qt::Key_Down)
        return QLineEdit::keyPressEvent(event);
    takeText();
    if (event->modifiers().testFlag(Qt::AltModifier))
        return showCalendar();
    setDate(m_date.addDays(up ? 1 : -1));
    selectAll();
}

void DatePicker::showCalendar()
{
    auto *popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    auto *calendar = new QCalendarWidget(popup);
    if (m_latest.isValid())
        calendar->setMaximumDate(m_latest);
    calendar->setSelectedDate(m_date);
    calendar->findChild<QAbstractItemView *>()->setAccessibleName(tr("Calendar"));
    auto *layout = new QVBoxLayout(popup);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(calendar);
    connect(calendar, &QCalendarWidget::activated, this, [this, popup](QDate date) {
        popup->close();
        take(date);
        selectAll();
    });
    popup->move(mapToGlobal(QPoint(0, height())));
    popup->show();
    calendar->setFocus();
}

} // namespace Tallymere
