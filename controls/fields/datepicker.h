#pragma once

#include <QDate>
#include <QLineEdit>

namespace Tallymere {

// A date that is typed in the order of the system's short dates, stepped by the arrow keys, or picked from a calendar that
// Alt+Down and the button open. Of a year two digits will do: 50 to 99 are read as 1950 to 1999, 0 to 49 as 2000 to 2049.
// What is typed counts when the field is left or Enter pressed; what is no date, or lies beyond the latest, gives way to the
// date before. Where it is told what day it is, day and month alone will do, and a date that is typed or picked more than a
// year away from that is announced, for a question. In a dialog that is confirmed as a whole, what is no date stays, marked as
// refused, and keeps the dialog open.
class DatePicker final : public QLineEdit
{
    Q_OBJECT

public:
    explicit DatePicker(QWidget *parent = nullptr);

    QDate date() const { return m_date; }
    void setDate(QDate date); // one beyond the latest becomes that
    void setMaximumDate(QDate latest) { m_latest = latest; }
    void setToday(QDate today) { m_today = today; }
    void setOptional() { m_isOptional = true; } // nothing typed is no date

    void keepRefused() { m_keepsRefused = true; } // until settle() is asked for
    void settle(); // takes what has been typed; throws RuleError where that is refused

Q_SIGNALS:
    void dateChanged();
    void taken(); // what has been typed, also where it is the date that was there
    void refused(const QString &message);
    void distantDate(QDate date, QDate before); // has been taken in the place of the one before

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void takeText();
    QDate typedDate() const;
    void take(QDate date);
    void showCalendar();
    void showDate();

    QDate m_date;
    QDate m_latest;
    QDate m_today;
    bool m_isOptional = false;
    bool m_keepsRefused = false;
};

} // namespace Tallymere
