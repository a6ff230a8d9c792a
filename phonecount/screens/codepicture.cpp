#include "phonecount/screens/codepicture.h"

#include "controls/windows/screenmetrics.h"

#include <algorithm>
#include <QPainter>

namespace Tallymere {

namespace {
constexpr int lightZone = 4; // modules around a code
constexpr int side = 280; // design pixels
} // namespace

CodePicture::CodePicture(QWidget *parent)
    : QWidget(parent)
{
}

void CodePicture::setText(const QString &text)
{
    m_code = text.isEmpty() ? Printing::SquareCode() : Printing::squareCodeOf(text);
    update();
}

QSize CodePicture::sizeHint() const { return {scaled(this, side), scaled(this, side)}; }

// Modules are whole pixels, so that none is wider than another.
void CodePicture::paintEvent(QPaintEvent *)
{
    if (m_code.modules == 0)
        return;
    QPainter painter(this);
    const int all = m_code.modules + 2 * lightZone;
    const int module = std::max(1, std::min(width(), height()) / all);
    const QPoint corner((width() - all * module) / 2, (height() - all * module) / 2);
    painter.fillRect(QRect(corner, QSize(all * module, all * module)), Qt::white);
    for (int row = 0; row < m_code.modules; ++row) {
        for (int column = 0; column < m_code.modules; ++column) {
            if (m_code.isDark(row, column))
                painter.fillRect(corner.x() + (column + lightZone) * module,
                                 corner.y() + (row + lightZone) * module, module, module, Qt::black);
        }
    }
}

} // namespace Tallymere
