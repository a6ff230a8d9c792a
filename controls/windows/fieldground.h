#pragma once

#include <QPalette>
#include <QWidget>

namespace Tallymere {

// The ground of a field that stands on another one than what is typed into, also when the desktop turns from light to dark.
class FieldGround final : public QObject
{
    Q_OBJECT

public:
    // To be asked for when the field is made: a watch over it that begins in the middle of one of its events has others see that
    // event twice.
    static FieldGround &of(QWidget &field);

    void set(QPalette::ColorRole role); // one of the palette's; Base: its own again

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit FieldGround(QWidget &field);
    void take();

    QWidget &m_field;
    QPalette::ColorRole m_role = QPalette::Base;
};

} // namespace Tallymere
