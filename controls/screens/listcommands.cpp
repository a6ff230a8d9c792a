#include "controls/screens/listcommands.h"

#include "controls/windows/icons.h"

#include <QAction>
#include <QActionGroup>

using namespace Qt::StringLiterals;

namespace Tallymere {

ListCommands::ListCommands(ListGrid &grid, Run run, QObject *parent)
    : QObject(parent)
    , m_grid(grid)
    , m_run(std::move(run))
{
}

void ListCommands::addTo(QMenu &menu, const QList<ListCommand> &commands)
{
    menu.setToolTipsVisible(true);
    for (const ListCommand &command : commands) {
        if (command.separatorBefore && !command.hidden)
            menu.addSeparator();
        if (!command.choices.isEmpty())
            addChoices(menu, command);
        else if (!command.entries.isEmpty())
            addTo(*addSubMenu(menu, command), command.entries);
        else
            addPopup(command, add(menu, command));
    }
}

QMenu *ListCommands::addSubMenu(QMenu &menu, const ListCommand &command)
{
    QMenu *entries = menu.addMenu(command.caption);
    entries->menuAction()->setObjectName(command.name);
    setGlyph(*entries->menuAction(), command.glyph);
    return entries;
}

void ListCommands::addChoices(QMenu &menu, const ListCommand &command)
{
    QMenu *choices = addSubMenu(menu, command);
    auto *group = new QActionGroup(this);
    for (const ListCommand &choice : command.choices) {
        QAction *action = add(*choices, choice);
        action->setCheckable(true);
        action->setChecked(group->actions().size() == command.firstChoice);
        group->addAction(action);
    }
}

QAction *ListCommands::add(QMenu &menu, const ListCommand &command)
{
    auto *action = new QAction(command.caption, &menu);
    if (!command.hidden)
        menu.addAction(action);
    action->setObjectName(command.name);
    action->setShortcut(command.shortcut);
    action->setCheckable(command.checkable);
    setGlyph(*action, command.glyph);
    action->setEnabled(command.run != nullptr);
    if (!command.run)
        action->setToolTip(tr("Not available in this version"));
    else if (command.available)
        m_available.append({action, command.available});
    connect(action, &QAction::triggered, this, [this, run = command.run] { m_run(run); });
    return action;
}

void ListCommands::addPopup(const ListCommand &command, QAction *action)
{
    if (command.popupCaption.isEmpty())
        return;
    auto *entry = new QAction(command.popupCaption, &m_grid);
    setGlyph(*entry, command.glyph);
    entry->setEnabled(action->isEnabled());
    connect(action, &QAction::enabledChanged, entry, &QAction::setEnabled);
    connect(entry, &QAction::triggered, action, &QAction::trigger);
    m_grid.addAction(entry);
}

void ListCommands::finish(QAction *copy)
{
    if (copy) {
        copy->setShortcuts(QKeySequence::Copy);
        if (!m_grid.actions().isEmpty()) {
            auto *separator = new QAction(&m_grid);
            separator->setSeparator(true);
            m_grid.addAction(separator);
        }
        m_grid.addAction(copy);
    }
    const TableModel *rows = m_grid.tableModel();
    connect(&rows->dataSet(), &Engine::DataSet::currentChanged, this, &ListCommands::showAvailable);
    connect(&rows->dataSet(), &Engine::DataSet::listChanged, this, &ListCommands::showAvailable);
    connect(&rows->dataSet(), &Engine::DataSet::rowChanged, this, &ListCommands::showAvailable);
    connect(rows, &QAbstractItemModel::rowsInserted, this, &ListCommands::showAvailable);
    connect(rows, &TableModel::completed, this, &ListCommands::showAvailable);
    showAvailable();
}

// A long list that has just been opened is not read for this; its first record is asked when the rest is there. A
// failure of the store is reported by the rows, which fail to show as well.
void ListCommands::showAvailable()
{
    const TableModel &rows = *m_grid.tableModel();
    if ((rows.isPartial() && rows.rowCount() > 0) || !rows.dataSet().isOpen())
        return;
    for (const auto &[action, isAvailable] : std::as_const(m_available)) {
        bool available = false;
        const std::exception_ptr failure = Guard::attempt([&, &test = isAvailable] { available = test(); });
        action->setEnabled(available && !failure);
    }
}

} // namespace Tallymere
