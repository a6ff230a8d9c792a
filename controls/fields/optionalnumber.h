#pragma once

#include <QString>
#include <QWidget>

class QCheckBox;
class QSpinBox;

namespace Tallymere {

// A number that can be left open: a box with up and down, and a check box "All" beside it. While that is checked the
// box shows "<All>"; a number that is typed or stepped to unchecks it.
class OptionalNumber final : public QWidget
{
    Q_OBJECT

public:
    struct Kind
    {
        QString number; // component names: "editYear"
        QString all; // "chkYearAll"
        QString name; // what accessibility tools call them: "Year"
        QString allName; // "All years"
        int lowest = 1; // at least 1
        int highest = 1;
        int start = 1; // where stepping begins
    };

    OptionalNumber(const Kind &kind, QWidget *parent); // with "All" checked

    int number() const; // 0: all
    void choose(int number); // 0: all
    void settle(); // what is still being typed counts

private:
    QSpinBox *m_number;
    QCheckBox *m_all;
};

} // namespace Tallymere
