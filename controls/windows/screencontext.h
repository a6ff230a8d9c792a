#pragma once

#include "base/prompts.h"

#include <functional>

class QString;
class QWidget;

namespace Tallymere {

// Leads to the card of the item that a row is of, in every window.
inline constexpr QKeyCombination itemCardKey = Qt::CTRL | Qt::Key_I;

class SettingsStore;
struct FileChoice;
class TDataModuleTallymere;
class TdmLookUpsInv;

// What a screen needs from the system around it. The main window fills one and hands it to every screen; it
// outlives them all.
struct ScreenContext
{
    TDataModuleTallymere &data;
    TdmLookUpsInv &lookups;
    Prompts &prompts;

    // Whether a default printer exists. Empty: none.
    std::function<bool()> printerDefined = {};
    // The user-rights check, by the command's key and name. False: the command is abandoned silently.
    std::function<bool(const QString &key, const QString &name)> securityCheck = {};
    // Finds a screen by its component name or creates it, shows it and returns it; nullptr for a screen that the
    // system does not have.
    std::function<QWidget *(const QString &screenName)> openScreen = {};
    // Whether openScreen knows the screen. Commands that lead to one that is not there are disabled.
    std::function<bool(const QString &screenName)> hasScreen = {};
    // Makes a further instance of a screen even if one is open, shows it and returns it.
    std::function<QWidget *(const QString &screenName)> openAnotherScreen = {};
    // Runs a command of the main window, by its action's name ("ActionSynchronizeLocations"). Empty: there is no
    // main window, and commands of screens that stand for one are disabled.
    std::function<void(const QString &action)> runAction = {};
    // Says something in the status line of the main window, for a moment. Empty: there is none.
    std::function<void(const QString &text)> say = {};
    // Opens a document or an address ("mailto:...", "http://...") with the desktop's program for it.
    std::function<void(const QString &address)> openObject = {};
    // Where windows keep their places and grids their column widths. Null: nothing is remembered.
    SettingsStore *settings = nullptr;
    // Asks the user for a file to write, over a window; empty when he cancels. Without it, commands that save files are
    // disabled.
    std::function<QString(QWidget *window, const FileChoice &choice)> chooseFileToSave = {};
    // Shows a report of a list by its name ("TrptItems"), with the rows that the list's filter expression leaves, in the
    // list's order (an index, or columns of a query). Empty: lists cannot be printed.
    std::function<void(const QString &report, const QString &filter, const QString &order)> printList = {};
    // Brings a file of a kind ("items") in, over a window; without one the user names it. True when something has come in.
    // Empty: lists take no files.
    std::function<bool(const QString &kind, const QString &file, QWidget *window)> importFile = {};
    // Takes back what was brought in last, over a window; true when it has gone.
    std::function<bool(const QString &kind, QWidget *window)> takeBackImport = {};
    // Saves all records of a kind as a file that can be brought in again, over a window; the list's caption is proposed.
    std::function<void(const QString &kind, const QString &caption, QWidget *window)> saveForImport = {};
    // Shows the card of an item, by its key. Empty: there is none to show.
    std::function<void(int item)> showItem = {};
    // Opens the help at a screen's topic, named by the screen. Empty: no help, and the command is disabled.
    std::function<void(const QString &screenName)> showHelp = {};

    bool allows(const QString &key, const QString &name) const
    {
        return !securityCheck || securityCheck(key, name);
    }
    bool knows(const QString &screenName) const { return hasScreen && openScreen && hasScreen(screenName); }
};

} // namespace Tallymere
