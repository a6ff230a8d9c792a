#pragma once

#include <QPushButton>

namespace Tallymere {

// A button of a column of commands: sign and caption begin at the left, under one another.
class CommandButton final : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Tallymere
