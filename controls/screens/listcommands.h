#pragma once

#include "base/glyph.h"
#include "controls/grids/listgrid.h"

#include <functional>
#include <QKeySequence>
#include <QMenu>

class QAction;

namespace Tallymere {

// One command of a list screen: an entry of a menu, and where wanted of the pop-up menu.
struct ListCommand
{
    QString name; // component name of the menu's entry: "mnuFilter"
    QString caption;
    std::function<void()> run = {}; // empty: not available, shown disabled
    Glyph glyph = Glyph::None; // in its menu and on its button
    // Whether it can be used on the current record; asked whenever that changes. Empty: always.
    std::function<bool()> available = {};
    QKeySequence shortcut = {};
    QString popupCaption = {}; // empty: not in the pop-up menu
    bool checkable = false;
    bool separatorBefore = false;
    bool hidden = false; // not in the menu; its button and the pop-up menu lead to it
    QList<ListCommand> entries = {}; // a sub-menu of commands; it runs nothing itself
    QList<ListCommand> choices = {}; // a sub-menu of entries of which one is checked
    int firstChoice = 0; // which of them is at the start
};

struct ListMenu
{
    QString caption;
    QList<ListCommand> commands;
};

// A button that does what a command does.
struct ListButton
{
    QString name;
    QString caption;
    QString command;
};

// The entries of a list's commands in its menus and in the pop-up menu of its rows, which can be used while their commands
// are available for the current record.
class ListCommands : public QObject
{
    Q_OBJECT

public:
    using Run = std::function<void(const std::function<void()> &command)>; // under the screen's guard

    ListCommands(ListGrid &grid, Run run, QObject *parent);

    void addTo(QMenu &menu, const QList<ListCommand> &commands);
    static QMenu *addSubMenu(QMenu &menu, const ListCommand &command);
    // Once all are there: what every list offers comes after the screen's own entries.
    void finish(QAction *copy);

private:
    QAction *add(QMenu &menu, const ListCommand &command);
    void addChoices(QMenu &menu, const ListCommand &command);
    void addPopup(const ListCommand &command, QAction *action);
    void showAvailable();

    ListGrid &m_grid;
    const Run m_run;
    QList<std::pair<QAction *, std::function<bool()>>> m_available; // that depend on the current record
};

} // namespace Tallymere
