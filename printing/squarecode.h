#pragma once

#include <QList>
#include <QString>

namespace Tallymere::Printing {

// A text as a QR code, which a phone's camera reads from a screen or from paper.
struct SquareCode
{
    int modules =
        0; // in a row and in a column, without the light zone around them; 0 where there is no code for the text
    QList<bool> dark{}; // row by row

    bool isDark(int row, int column) const { return dark[row * modules + column]; }
};

SquareCode squareCodeOf(const QString &text);

} // namespace Tallymere::Printing
