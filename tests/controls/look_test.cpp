#include "controls/windows/look.h"

#include <gtest/gtest.h>

using namespace Tallymere;
using Role = Look::Role;

namespace {

QPalette palette(QRgb window, QRgb base, QRgb text, QRgb highlight)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

struct Desktop
{
    const char *name;
    QPalette palette;
    QRgb accent; // 0: whatever is legible
};

const Desktop desktops[] = {
    {"without one, light", palette(0xefefef, 0xffffff, 0x000000, 0x308cc6), 0xff1f6f5c},
    {"without one, dark", palette(0x1b1e22, 0x22262b, 0xe7e9eb, 0x308cc6), 0xff5cc3a7},
    {"violet, light", palette(0xfafafa, 0xffffff, 0x2e3436, 0x6a1b9a), 0xff6a1b9a},
    {"blue, dark", palette(0x303030, 0x1e1e1e, 0xffffff, 0x15539e), 0},
    {"yellow", palette(0xf6f5f4, 0xffffff, 0x2e3436, 0xffd54f), 0},
    {"high contrast", palette(0x000000, 0x000000, 0xffffff, 0x00ff00), 0xff00ff00},
    {"grey in grey", palette(0x9a9a9a, 0xb0b0b0, 0x202020, 0x505050), 0},
};

const QList<Role> texts{Role::Accent,   Role::Text,       Role::SecondText,
                        Role::Negative, Role::NoticeText, Role::Positive};
const QList<Role> grounds{Role::ChosenRow, Role::ChosenCell, Role::Head, Role::NoticeGround};

} // namespace

TEST(Look, IsLegibleAndTellsRowAndCellApartOnEveryDesktop)
{
    for (const Desktop &desktop : desktops) {
        SCOPED_TRACE(desktop.name);
        const Look look(desktop.palette);
        EXPECT_TRUE(desktop.accent == 0 || look.colour(Role::Accent).rgb() == desktop.accent);
        EXPECT_GE(Look::contrast(look.colour(Role::NoticeText), look.colour(Role::NoticeGround)), 4.5);
        const QColor field = desktop.palette.color(QPalette::Base);
        EXPECT_GT(Look::contrast(look.colour(Role::ChosenRow), field), 1.1);
        EXPECT_GT(Look::contrast(look.colour(Role::ChosenCell), look.colour(Role::ChosenRow)), 1.1);
        EXPECT_GT(Look::contrast(look.colour(Role::Line), field), 1.1);
        for (const Role text : texts) {
            SCOPED_TRACE(static_cast<int>(text));
            for (const Role ground : grounds)
                EXPECT_GE(Look::contrast(look.on(look.colour(ground), text), look.colour(ground)), 4.5);
            for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window}) {
                const QColor ground = desktop.palette.color(role);
                EXPECT_GE(Look::contrast(look.on(ground, text), ground), 4.5);
                if (text != Role::NoticeText) { // which has a ground of its own
                    EXPECT_GE(Look::contrast(look.colour(text), ground), 4.5);
                }
            }
        }
    }
}
