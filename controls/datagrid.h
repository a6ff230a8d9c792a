#pragma once

#include "controls/tablemodel.h"

#include <QTableView>

namespace Tallymere {

// The look that lists and line grids share: rows of one fixed height, column widths scaled to the screen.
class DataGrid : public QTableView
{
    Q_OBJECT

public:
    explicit DataGrid(QWidget *parent = nullptr);

    TableModel *tableModel() const { return m_model; }
    // The width that shows all columns, with frame and scroll bar.
    int fullWidth() const;
    int heightForRows(int rows) const;

protected:
    void showModel(TableModel *model); // takes widths from the model's columns
    bool viewportEvent(QEvent *event) override; // a text that is cut shows whole beside the mouse

private:
    TableModel *m_model = nullptr;
};

// A list to choose from: whole rows, and the data set's current record under the cursor. Enter and double click
// choose the row.
class ListGrid : public DataGrid
{
    Q_OBJECT

public:
    using DataGrid::DataGrid;

    void setDataSet(Engine::DataSet &set, const QList<GridColumn> &columns, const Guard &guard);

Q_SIGNALS:
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void takeCursor(); // the data set has moved
    void giveCursor(const QModelIndex &current); // the user has moved

    Engine::DataSet *m_data = nullptr;
    const Guard *m_guard = nullptr;
    bool m_moving = false;
};

} // namespace Tallymere
