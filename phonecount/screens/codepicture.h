#pragma once

#include "printing/squarecode.h"

#include <QWidget>

namespace Tallymere {

// A code for a phone's camera, as large as there is room, dark on white whatever the desktop's colours are.
class CodePicture final : public QWidget
{
    Q_OBJECT

public:
    explicit CodePicture(QWidget *parent = nullptr);
    void setText(const QString &text); // empty: nothing to scan

protected:
    void paintEvent(QPaintEvent *event) override;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width; }

private:
    Printing::SquareCode m_code;
};

} // namespace Tallymere
