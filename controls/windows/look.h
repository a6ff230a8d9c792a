#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPalette>
#include <QString>

class QPainter;
class QRectF;

namespace Tallymere {

// The colours of everything that is drawn here and not by the desktop's style, by what they are for. They are derived from
// a palette, so that they follow the desktop from light to dark, and its highlight where it has one of its own.
class Look
{
public:
    enum class Role {
        Accent, // icons, links, the frame of what is typed into
        ChosenRow, // grounds of the row with the cursor, and of its cell where the cursor goes from cell to cell
        ChosenCell,
        Line, // between rows, and around what has a border
        Head, // ground of the titles of columns
        Text,
        SecondText, // what explains, and what is not for typing
        Negative, // figures below zero, what has been refused
        NoticeText, // what wants attention, on its ground
        NoticeGround,
        Positive // what is done
    };

    explicit Look(const QPalette &palette);

    bool isDark() const { return m_dark; }
    // As it is seen on the ground of fields and of windows.
    QColor colour(Role role) const;
    // As it is seen on another ground: nearer to black or white where it would be too faint.
    QColor on(const QColor &ground, Role role) const;

    // The figure that accessibility rules use: from 1 for none to 21 for black on white. Texts need 4.5.
    static double contrast(const QColor &one, const QColor &other);

private:
    QColor m_ground; // of fields
    QColor m_window;
    QColor m_text;
    QColor m_accent;
    bool m_dark;
};

// So much of the second colour in the first one.
QColor mixed(const QColor &one, const QColor &other, double share);

// Design pixels.
namespace Space {
inline constexpr int cell = 8; // inside cells, at both sides
inline constexpr int group = 12; // around what belongs together
inline constexpr int part = 24; // between the parts of a window
inline constexpr int row = 26; // the height of a row of a grid
inline constexpr int corner = 5; // the radius of rounded ones
} // namespace Space

// The further fonts beside that of the desktop: a little smaller for what explains, the same in bold for what stands over
// something, and a little larger in bold for what all comes to.
QFont secondFont(const QFont &font);
QFont headFont(const QFont &font);
QFont totalFont(const QFont &font);

// In a square.
void drawTick(QPainter &painter, const QRectF &room, const QColor &colour);
void drawNoticeGround(QPainter &painter, const QRectF &room, double radius, const Look &look);

// As much of the text as there is room for; whole where it lacks but the fraction of a pixel.
QString shortened(const QString &text, const QFontMetrics &metrics, int width);

} // namespace Tallymere
