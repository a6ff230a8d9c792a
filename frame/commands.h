#pragma once

#include "base/glyph.h"

#include <QList>
#include <QString>

class QProgressBar;

namespace Tallymere {

class CommandRunner;
struct ScreenContext;

// How a command opens its screen.
enum class ScreenOpening {
    ListPattern, // refreshed if open, filter off, shown with all records
    Show, // created if absent, shown
    ShowAgain, // as Show; a visible screen runs its show handler again
    ShowModal,
    ShowModalOnce, // created anew, shown modally, freed
    Post, // created if absent and not shown; its post command runs
    None, // nothing to open
};

// What a command that opens no screen works with.
struct CommandSite
{
    ScreenContext &context;
    const CommandRunner &screens;
    QProgressBar &progress; // of the status bar
};

// One action of the main window as data. The rights key and name are what SecurityCheck is asked; an empty key asks
// nothing.
struct MainCommand
{
    QString action;
    QString caption;
    QString hint = {};
    QString window = {}; // the title of its window, where neither caption nor hint has those words
    QString rightsKey = {};
    QString rightsName = {};
    Glyph glyph = Glyph::None; // on its button and in its menu
    QString screen = {}; // component name
    ScreenOpening opening = ScreenOpening::None;
    bool refreshOpenScreen = true; // list pattern only
    bool hourglass = true;
    void (*job)(const CommandSite &) = nullptr; // what is done instead of opening a screen
};

const QList<MainCommand> &commands();
// The one that opens a screen, by its component name, other than to post; null when there is none.
const MainCommand *commandTo(const QString &screen);

} // namespace Tallymere
