#pragma once

#include "controls/grids/datagrid.h"
#include "controls/grids/listsearch.h"
#include "data/readaside.h"

namespace Tallymere {

// Rows that follow each other.
struct RowRange
{
    int first = 0;
    int last = 0;

    int count() const { return last - first + 1; }
};

// A list to choose from: whole rows, and the data set's current record under the cursor. Enter and double click
// choose the row. Typing searches in the column that the list is ordered by.
class ListGrid : public DataGrid
{
    Q_OBJECT

public:
    using DataGrid::DataGrid;

    void setDataSet(Engine::DataSet &set, const QList<GridColumn> &columns, const Guard &guard);
    // Lets the user select many rows at once, to copy them; the cursor stays on one.
    void allowSelection() { setSelectionMode(QAbstractItemView::ExtendedSelection); }
    // From top to bottom; the row of the cursor when none is selected.
    QList<RowRange> selectedRows() const;

    ListSearch *search() const { return m_search; }

    CellState cellState(const QModelIndex &cell) const override;
    bool hasFocusBar(const QModelIndex &cell) const override;

    void keyboardSearch(const QString &text) override;

Q_SIGNALS:
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event = nullptr) const override;

private:
    void takeCursor(); // the data set has moved
    void giveCursor(const QModelIndex &current); // the user has moved
    void dropSelection(); // but for the row of the cursor
    void readRest(); // of a list whose first page is painted
    void showRest();
    bool waitsForRest(const QKeyEvent &key);
    bool staysOnPage(const QKeyEvent &key) const;
    void releaseKeys();

    Engine::DataSet *m_data = nullptr;
    const Guard *m_guard = nullptr;
    ListSearch *m_search = nullptr;
    ReadAside m_rest{this}; // of the keys
    std::vector<std::unique_ptr<QKeyEvent>> m_held; // until the rest is there
    bool m_isReleasing = false;
    bool m_moving = false;
};

} // namespace Tallymere
