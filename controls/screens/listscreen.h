#pragma once

#include "base/listfilter.h"
#include "controls/grids/listgrid.h"
#include "controls/screens/commandscreen.h"
#include "controls/screens/filterdialog.h"
#include "controls/screens/listcommands.h"
#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "data/tableowner.h"

#include <functional>
#include <QMainWindow>

class QAction;
class QActionGroup;
class QFrame;
class QHBoxLayout;

namespace Tallymere {

class FilterChip;
class ListOutput;
class ListSort;
class ListStatus;
class WindowMemory;

struct ListDescription
{
    QString name; // component name of the screen
    QString caption;
    QList<GridColumn> columns;
    QList<ListButton> buttons = {}; // from left to right
    QList<ListMenu> menus = {};
    // What an empty list shows; without it a text that names the button "New" if there is one.
    QString emptyHint = {};
};

// How a list is narrowed by its filter dialog.
struct FilterChoices
{
    std::function<FilterDialog *()> makeDialog; // once, when it is first needed; owned by the list
    std::function<QString()> expression = {}; // of what is chosen in its boxes; words and days are the list's
    std::function<void()> apply = {}; // narrows the list to what is chosen; empty: where that is anything
};

// A window that shows a data set as a list, with commands on its rows. Not modal; it is freed when it is closed.
//
// The screens give a description, the data set and what the commands do; the base owns layout, sizes and places, the
// filter mark in caption and menu, refreshing and moving, the status line, the search by typing, copying and saving.
class ListScreen : public QMainWindow, public TableOwner, public CommandScreen
{
    Q_OBJECT

public:
    const Guard &guard() const { return m_guard; }
    Engine::DataSet &dataSet() const { return *m_data; }
    TableModel &rows() const { return *m_grid->tableModel(); }
    QList<Engine::TableReader *> ownedTables() override; // none when it shows a query

    // Reads the list anew; the cursor stays on its row.
    void refreshList() override;
    // Every record shows again: the filter is off, its command unchecked, and a filter dialog that has been opened
    // is cleared.
    void resetFilter() override;
    // Brings the screen back: restored when minimised, its show step run when it was visible, in front.
    void showAgain() override;
    // Moves to a row by its key; false when the list does not show it.
    bool moveToKey(int key);
    // Switches the filter on, or off with an empty expression.
    void applyFilter(const QString &expression);
    // Narrows the list to the rows that refer to these records, and lets its filter dialog show them. No key of 0.
    void filterBy(const QList<KeyOfField> &keys);
    // The same for lists whose filter may be on and say nothing: every row shows, marked as filtered.
    void switchFilter(bool on, const QString &expression);

    void btnFilterClick(); // of a list that has a filter
    QAction *command(const QString &name) const; // by component name; nullptr when there is none

protected:
    ListScreen(ScreenContext &context, QWidget *parent);

    // Called once by the constructor of a screen, after its data set is open.
    void build(const ListDescription &description, Engine::DataSet &set,
               const std::function<void()> &defaultCommand);

    ScreenContext &context() const { return m_context; }
    ListGrid *grid() const { return m_grid; }

    // The commands and menus that lists have alike, with their usual names, captions and keys.
    // Print, save, copy, exit. A list without a report has no command for printing it.
    // Where files of a kind ("items") can be brought in, also importing, by command and by dropping one on the list.
    ListMenu fileMenu(const QString &report, const QString &importKind = {});
    ListCommand findCommand(std::function<void()> run) const;
    ListCommand filterCommand(FilterChoices choices); // and the filters that the user has kept behind it
    ListCommand refreshCommand();
    ListMenu helpMenu(const QString &caption) const; // leads to the screen's topic, where there is help

    void say(const QString &text); // in the status line, for a moment
    void showSum(const QString &label,
                 const QString &figure); // of the rows, in the status line; an empty figure is none
    void setCaption(const QString &caption); // in place of the description's
    virtual void showStep(); // each time the screen is shown: caption
    FilterDialog &filterDialog();
    QString chosenExpression() const; // of all that is chosen in the filter dialog, which has been made
    void applyFilterChoices();
    virtual void presetFilterDialog(const QList<KeyOfField> &) { } // the dialog has been cleared

    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QList<ListCommand> importCommands();
    void importFile(const QString &file);
    void layOut();
    void addButton(const ListButton &button);
    void print(const QString &report);
    void runCommand(const std::function<void()> &run);
    void addSorting();
    void showChosenOrder();
    QList<ListMenu> withItemCard(QList<ListMenu> menus);
    FilterColumns filterColumns() const;
    QString filterWords() const;
    void clearFilterDialog();
    void showFilterMark();
    void addFilterChip();
    void addKeptFilters();
    QString hint() const;
    void sizeForRows();

    ScreenContext &m_context;
    Guard m_guard;
    Engine::DataSet *m_data = nullptr;
    QString m_caption;
    QString m_emptyHint;
    QString m_importKind; // of the files that the list takes
    ListGrid *m_grid = nullptr;
    ListStatus *m_status = nullptr;
    ListOutput *m_output = nullptr;
    ListSort *m_sort = nullptr;
    QActionGroup *m_orders = nullptr; // the entries that stand for the list's own orders
    QAction *m_ownOrder = nullptr; // that is in force, or would be without sorting by a column
    WindowMemory *m_memory = nullptr;
    QFrame *m_topPanel = nullptr;
    QHBoxLayout *m_buttons = nullptr;
    FilterChoices m_filterChoices; // of a list that has a filter
    FilterDialog *m_filter = nullptr; // once it has been needed
    FilterChip *m_filterChip = nullptr; // likewise
    QSize m_firstSize;
};

// Reads the list of that component name anew, if it is open.
void refreshOpenList(const QString &name);

} // namespace Tallymere
