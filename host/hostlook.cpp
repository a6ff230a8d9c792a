#include "host/hostlook.h"

#include "host/hoststyle.h"

#include <algorithm>
#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

struct Colours
{
    QRgb window, field, button, text, secondText, accent, onAccent, notice;
};

constexpr Colours light{0xfff6f7f8, 0xffffffff, 0xfff0f2f4, 0xff1f2328,
                        0xff5b626b, 0xff1f6f5c, 0xffffffff, 0xfffdf3e1};
constexpr Colours dark{0xff22262b, 0xff1b1e22, 0xff2a2f34, 0xffe7e9eb,
                       0xffb0b8c0, 0xff5cc3a7, 0xff10231e, 0xff3a2f1c};

QColor half(QRgb one, QRgb other)
{
    return {(qRed(one) + qRed(other)) / 2, (qGreen(one) + qGreen(other)) / 2, (qBlue(one) + qBlue(other)) / 2};
}

QPalette paletteOf(const Colours &colours)
{
    QPalette palette(QColor(colours.button), QColor(colours.window)); // with the shades between
    palette.setColor(QPalette::Base, colours.field);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::ToolTipBase, colours.notice);
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText, QPalette::ToolTipText})
        palette.setColor(text, colours.text);
    palette.setColor(QPalette::PlaceholderText, colours.secondText);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.onAccent);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::LinkVisited, colours.accent);
    for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, text, half(colours.secondText, colours.window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, half(colours.secondText, colours.window));
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.window);
    return palette;
}

// Qt falls back on these, and paints them in their own colours.
bool desktopBringsNone()
{
    const QString style = QApplication::style()->name();
    const bool fallenBack = style.compare("fusion"_L1, Qt::CaseInsensitive) == 0
        || style.compare("windows"_L1, Qt::CaseInsensitive) == 0;
    const QPalette own = QApplication::style()->standardPalette();
    const QPalette::ColorRole told[] = {QPalette::Window, QPalette::Base, QPalette::Text, QPalette::Highlight};
    return fallenBack && qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE")
        && std::all_of(std::begin(told), std::end(told), [&](QPalette::ColorRole role) {
               return QApplication::palette().color(role) == own.color(role);
           });
}

// What desktops without a part of Qt's leave in the settings of their own toolkit.
bool desktopAsksForDark()
{
    const QString theme = qEnvironmentVariable("GTK_THEME");
    if (!theme.isEmpty())
        return theme.endsWith("dark"_L1, Qt::CaseInsensitive);
    for (const QString &file : {u"gtk-4.0/settings.ini"_s, u"gtk-3.0/settings.ini"_s}) {
        const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
        if (path.isEmpty())
            continue;
        const QSettings settings(path, QSettings::IniFormat);
        if (settings.value("Settings/gtk-application-prefer-dark-theme"_L1).toBool()
            || settings.value("Settings/gtk-theme-name"_L1).toString().endsWith("dark"_L1, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace

std::optional<HostLook> lookNamed(const QString &name)
{
    if (name == "desktop"_L1)
        return HostLook::Desktop;
    if (name == "light"_L1)
        return HostLook::Light;
    return name == "dark"_L1 ? std::optional(HostLook::Dark) : std::nullopt;
}

void takeLook(HostLook look)
{
    if (look == HostLook::Desktop && !desktopBringsNone())
        return;
    const bool isDark = look == HostLook::Dark || (look == HostLook::Desktop && desktopAsksForDark());
    QApplication::setStyle(new HostStyle);
    QApplication::setPalette(paletteOf(isDark ? dark : light));
}

} // namespace Tallymere
