#pragma once

#include "controls/grids/datagrid.h"

#include <QStringList>
#include <vector>

namespace Tallymere {

class RowsModel;

// A grid over rows that are texts already, few enough to be held in memory. Enter and a double click choose a row.
class RowsGrid : public DataGrid
{
    Q_OBJECT

public:
    explicit RowsGrid(QWidget *parent = nullptr);

    void setColumns(const QList<GridColumn> &columns); // once; their fields are not used
    // Figures of columns at the right are taken for negative when they begin with a minus or a parenthesis.
    void setRows(std::vector<QStringList> rows); // the cursor is on the first
    int currentRow() const { return currentIndex().row(); } // -1 for none
    QString shownHint() const override;

Q_SIGNALS:
    void chosen(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    RowsModel *m_model = nullptr;
};

} // namespace Tallymere
