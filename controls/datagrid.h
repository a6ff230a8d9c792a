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

} // namespace Tallymere
