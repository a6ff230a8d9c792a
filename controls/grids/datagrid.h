#pragma once

#include "controls/grids/tablemodel.h"
#include "controls/windows/look.h"

#include <QTableView>

namespace Tallymere {

class Titles;

// The look that lists and line grids share: rows of one fixed height with lines between them, column widths scaled to the
// screen. Its cells are drawn by a CellDelegate, its titles by Titles.
//
// Width that is left over goes to one column. Width that lacks is shared by all, down to what a column needs to be of use;
// what is missing then is scrolled. A width that the user has chosen stands.
class DataGrid : public QTableView
{
    Q_OBJECT

public:
    explicit DataGrid(QWidget *parent = nullptr);

    TableModel *tableModel() const { return m_table; } // null where it is not a data set that is shown
    const QList<GridColumn> &columns() const { return m_columns; }
    int columnOf(const QString &field) const; // -1 when no column shows it
    // The width that shows so many columns, with frame and scroll bar.
    int widthForColumns(int count) const;
    int fullWidth() const { return widthForColumns(static_cast<int>(m_columns.size())); }
    int leastWidth() const; // below which it scrolls sideways
    // What a column is wide without lack or surplus, in pixels of the screen.
    int wantedWidth(int column) const { return m_widths.value(column).wanted; }
    void setWantedWidth(int column, int width); // as by the user
    int surplusColumn() const { return m_surplusColumn; } // takes the width that the others leave over
    void setColumnShown(int column, bool shown); // another one than the surplus column
    int heightForRows(int rows) const;

    // The figures of a row that their columns are too narrow for, whole and each with its title; empty where all fit, and
    // for -1.
    QString cutFigures(int row) const;

    // How a cell looks for the cursor.
    enum class CellState { Plain, ChosenRow, ChosenCell, Typing };
    virtual CellState cellState(const QModelIndex &cell) const;
    virtual bool isRefused(const QModelIndex &) const { return false; } // what has been entered there
    virtual bool hasFocusBar(const QModelIndex &) const { return false; } // before the row that takes the keys
    bool beginsSetOff(int column) const; // the first of the columns that are set off, behind a line
    const Look &look() const { return m_look; } // of the grid's palette
    int cellPadding() const; // at both sides of a text, in pixels of the screen

    // What an empty grid shows instead of rows.
    void setHint(const QString &hint);
    virtual QString shownHint() const; // empty while there are rows, or nobody knows

protected:
    const QString &hint() const { return m_hint; }
    void showModel(TableModel *model);
    void showModel(QAbstractItemModel *model, const QList<GridColumn> &columns); // with the columns' widths
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override; // a text that is cut shows whole beside the mouse
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    bool takesKeys() const; // has the focus, or will have it again when what stands over the window is gone

private:
    struct Width
    {
        int wanted = 0;
        int least = 0;
    };

    bool isCut(const QModelIndex &cell) const;
    void paintHint(const QString &hint);
    void paintFocus();
    void updateRow(int row);
    int wantedWidthOf(int column) const;
    int wordsWidth(const GridColumn &described) const; // 0: it has no words
    int leastWidthOf(int column) const;
    int sumOf(int Width::*part) const;
    void shareWidth();

    Look m_look;
    Titles *m_titles;
    TableModel *m_table = nullptr;
    QList<GridColumn> m_columns;
    QList<Width> m_widths; // of the columns
    bool m_sharing = false; // widths are set for what there is room for, not by the user
    int m_surplusColumn = -1;
    QString m_hint;
};

} // namespace Tallymere
