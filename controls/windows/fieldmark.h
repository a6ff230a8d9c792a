#pragma once

#include "controls/windows/look.h"

#include <QWidget>

namespace Tallymere {

// What marks by itself where it has refused something: a grid, in the cell of the cursor.
class MarksRefusals
{
public:
    virtual void markRefused() = 0;

protected:
    ~MarksRefusals() = default;
};

// A frame around a field, over what the style draws.
class FieldMark final : public QWidget
{
    Q_OBJECT

public:
    FieldMark(QWidget &field, Look::Role role);

    // Frames what the field holds as refused until that changes.
    static void refuse(QWidget &field);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Look::Role m_role;
};

} // namespace Tallymere
