#include "controls/windows/look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QPainter>

namespace Tallymere {

namespace {

constexpr double leastContrast = 4.5;

// Linear light of a channel, as sRGB defines it.
double light(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) + 0.0722 * light(colour.blueF());
}

// What Qt's own styles highlight with where no desktop says anything.
bool isOfNoDesktop(const QColor &highlight)
{
    constexpr std::array<QRgb, 2> ofStyles{0xff308cc6, 0xff000080};
    return std::find(ofStyles.begin(), ofStyles.end(), highlight.rgb()) != ofStyles.end();
}

QColor legible(const QColor &colour, const QColor &ground)
{
    const QColor end =
        Look::contrast(Qt::white, ground) > Look::contrast(Qt::black, ground) ? Qt::white : Qt::black;
    constexpr int steps = 20;
    QColor legible = colour;
    for (int step = 1; step <= steps && Look::contrast(legible, ground) < leastContrast; ++step)
        legible = mixed(colour, end, static_cast<double>(step) / steps);
    return legible;
}

} // namespace

Look::Look(const QPalette &palette)
    : m_ground(palette.color(QPalette::Active, QPalette::Base))
    , m_window(palette.color(QPalette::Active, QPalette::Window))
    , m_text(palette.color(QPalette::Active, QPalette::Text))
    , m_dark(luminance(m_ground) < luminance(m_text))
{
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor own(m_dark ? 0x5cc3a7 : 0x1f6f5c);
    // A faint one would not tint the chosen row.
    m_accent = legible(isOfNoDesktop(highlight) ? own : highlight, m_ground);
}

QColor Look::colour(Role role) const
{
    switch (role) {
    case Role::ChosenRow:
        return mixed(m_ground, m_accent, m_dark ? 0.20 : 0.17);
    case Role::ChosenCell:
        return mixed(m_ground, m_accent, 0.34);
    case Role::Line:
        return mixed(m_ground, m_text, m_dark ? 0.09 : 0.12);
    case Role::Head:
        return mixed(m_ground, m_text, m_dark ? 0.045 : 0.06);
    case Role::NoticeGround:
        return m_dark ? QColor(0x3a2f1c) : QColor(0xfdf3e1);
    case Role::NoticeText:
        return legible(m_dark ? QColor(0xf1b75b) : QColor(0x8a4f06), colour(Role::NoticeGround));
    default:
        return legible(on(m_ground, role), m_window);
    }
}

QColor Look::on(const QColor &ground, Role role) const
{
    switch (role) {
    case Role::Accent:
        return legible(m_accent, ground);
    case Role::Text:
        return legible(m_text, ground);
    case Role::SecondText:
        return legible(mixed(m_text, m_ground, 0.27), ground);
    case Role::Negative:
        return legible(m_dark ? QColor(0xff8b80) : QColor(0xb42318), ground);
    case Role::Positive:
        return legible(m_dark ? QColor(0x5cc3a7) : QColor(0x1f6f5c), ground);
    default:
        return legible(colour(role), ground);
    }
}

double Look::contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

namespace {

QFont resized(QFont font, double share)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * share);
    else
        font.setPixelSize(qRound(font.pixelSize() * share));
    return font;
}

} // namespace

QFont secondFont(const QFont &font) { return resized(font, 12.0 / 13); }

QFont headFont(const QFont &font)
{
    QFont head = secondFont(font);
    head.setWeight(QFont::DemiBold);
    return head;
}

QFont totalFont(const QFont &font)
{
    QFont total = resized(font, 14.0 / 13);
    total.setBold(true);
    return total;
}

void drawTick(QPainter &painter, const QRectF &room, const QColor &colour)
{
    const auto at = [&room](double x, double y) { return room.topLeft() + QPointF(x, y) * room.width(); };
    const QPointF corners[] = {at(0.1, 0.55), at(0.4, 0.85), at(0.95, 0.2)};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, room.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(corners, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void drawNoticeGround(QPainter &painter, const QRectF &room, double radius, const Look &look)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.colour(Look::Role::NoticeGround));
    painter.drawRoundedRect(room, radius, radius);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QString shortened(const QString &text, const QFontMetrics &metrics, int width)
{
    return metrics.horizontalAdvance(text) <= width ? text : metrics.elidedText(text, Qt::ElideRight, width);
}

} // namespace Tallymere
