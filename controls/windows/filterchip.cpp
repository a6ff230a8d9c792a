#include "controls/windows/filterchip.h"

#include "controls/windows/icons.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int signSize = 12; // design pixels, as all here
constexpr int leastWords = 60;
} // namespace

FilterChip::FilterChip(QWidget *parent)
    : QAbstractButton(parent)
{
    setFont(secondFont(font()));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover); // it is painted anew when the mouse comes and goes
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

// The words of a record may hold the mark of mnemonics, which means nothing here.
void FilterChip::setText(const QString &words)
{
    if (words == text())
        return;
    QAbstractButton::setText(words);
    setShortcut({});
    setAccessibleName(tr("Filter: %1").arg(words));
    setAccessibleDescription(tr("Shows all records again."));
    setToolTip(tr("%1\nClick to show all records again.").arg(words));
    updateGeometry();
    update();
}

int FilterChip::marksWidth() const { return scaled(this, signSize) + 3 * scaled(this, Space::cell); }

QSize FilterChip::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 1 + marksWidth(),
            std::max(fontMetrics().height() + scaled(this, Space::cell), scaled(this, Space::row))};
}

QSize FilterChip::minimumSizeHint() const
{
    const QSize wanted = sizeHint();
    return {std::min(wanted.width(), scaled(this, leastWords) + marksWidth()), wanted.height()};
}

// Where there is no room for all of it, what has been chosen without what it is of: "Bakery" of "Item Type: Bakery".
QString FilterChip::shownWords(int width) const
{
    if (fontMetrics().horizontalAdvance(text()) <= width)
        return text();
    QStringList chosen;
    for (const QString &part : text().split(u", "_s))
        chosen.append(part.contains(u": "_s) ? part.section(u": "_s, 1) : part);
    return shortened(chosen.join(u", "_s), fontMetrics(), width);
}

void FilterChip::paintEvent(QPaintEvent *)
{
    using enum Look::Role;
    const Look look(palette());
    const QColor ground = look.colour(underMouse() ? ChosenCell : ChosenRow);
    const QColor accent = look.on(ground, Accent);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(accent, 1) : QPen(Qt::NoPen));
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(area, area.height() / 2, area.height() / 2);

    const int padding = scaled(this, Space::cell);
    const int sign = scaled(this, signSize);
    const QRect words = rect().adjusted(padding, 0, -2 * padding - sign, 0);
    painter.setPen(accent);
    painter.drawText(words, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                     shownWords(words.width()));
    paintGlyph(painter, QRectF(width() - padding - sign, (height() - sign) / 2.0, sign, sign), Glyph::Close,
               accent);
}

} // namespace Tallymere
