#include "controls/windows/icons.h"
#include "controls/windows/look.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// How much of a picture has a colour that can be told from the ground, and the strongest of it.
struct Ink
{
    int pixels = 0;
    QColor strongest;
};
Ink inkOf(const QImage &image)
{
    Ink ink;
    int alpha = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            ink.pixels += colour.alpha() > 127;
            if (colour.alpha() > alpha) {
                alpha = colour.alpha();
                ink.strongest = colour;
            }
        }
    }
    return ink;
}

} // namespace

TEST(IconsTest, EverySignIsDrawnWithinItsFrameInTheAccentOfThePaletteInForce)
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x22262b));
    dark.setColor(QPalette::Base, QColor(0x1d2125));
    dark.setColor(QPalette::Text, Qt::white);
    QPushButton button;
    for (const QPalette &palette : {before, dark}) {
        QApplication::setPalette(palette);
        const QColor accent = Look(palette).colour(Look::Role::Accent);
        for (int sign = 1; sign <= static_cast<int>(Glyph::Error); ++sign) {
            SCOPED_TRACE(sign);
            setGlyph(button, static_cast<Glyph>(sign));
            const Ink ink = inkOf(button.icon().pixmap(64).toImage());
            EXPECT_GT(ink.pixels, 100);
            EXPECT_LT(ink.pixels, 64 * 64 / 2) << "lines, no areas";
            EXPECT_EQ(ink.strongest.rgb(), accent.rgb());

            QImage larger(96, 96, QImage::Format_ARGB32);
            larger.fill(Qt::transparent);
            QPainter painter(&larger);
            paintGlyph(painter, QRectF(16, 16, 64, 64), static_cast<Glyph>(sign), accent);
            painter.end();
            EXPECT_EQ(inkOf(larger).pixels, inkOf(larger.copy(16, 16, 64, 64)).pixels) << "nothing is cut off";
        }
    }
    QApplication::setPalette(before);
}

// Some styles turn the ground of the entry with the cursor into the highlight, also where another one stands around them.
TEST(IconsTest, AnEntryWithTheCursorIsDrawnInTheColourOfItsWords)
{
    QAction entry;
    setGlyph(entry, Glyph::Post);
    const QString before = QApplication::style()->name();
    for (QStyle *style :
         {QStyleFactory::create(u"fusion"_s), static_cast<QStyle *>(new QProxyStyle(u"fusion"_s))}) {
        QApplication::setStyle(style);
        EXPECT_EQ(inkOf(entry.icon().pixmap(64, QIcon::Active).toImage()).strongest,
                  QApplication::palette().color(QPalette::HighlightedText));
        EXPECT_EQ(inkOf(entry.icon().pixmap(64).toImage()).strongest,
                  Look(QApplication::palette()).colour(Look::Role::Accent));
    }
    QApplication::setStyle(before);
}
