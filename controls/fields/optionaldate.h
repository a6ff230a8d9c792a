#pragma once

#include <QDate>
#include <QString>
#include <QWidget>

class QCheckBox;

namespace Tallymere {

class DatePicker;

// A date that can be left open: a date picker, and a check box "All" beside it. While that is checked there is no date; one
// that is typed or picked unchecks it.
class OptionalDate final : public QWidget
{
    Q_OBJECT

public:
    struct Kind
    {
        QString date; // component names: "editNotMovedSince"
        QString all; // "chkNotMovedAll"
        QString name; // what accessibility tools call them
        QString allName;
        QDate today; // by which day and month alone are read
        QDate start; // what unchecking "All" begins with
    };

    OptionalDate(const Kind &kind, QWidget *parent); // with "All" checked

    QDate date() const; // null: all
    void choose(QDate date); // null: all

private:
    DatePicker *m_date;
    QCheckBox *m_all;
};

} // namespace Tallymere
