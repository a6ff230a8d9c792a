#pragma once

#include "controls/grids/rowsgrid.h"
#include "transactions/entry/pastedrows.h"

namespace Tallymere {

// Shows the lines that pasted rows would become; what keeps one from that is framed, with the reason behind.
class PastedRowsGrid final : public RowsGrid
{
    Q_OBJECT

public:
    explicit PastedRowsGrid(QWidget *parent = nullptr);

    void setLineColumns(QList<GridColumn> columns); // of the kind of document; once
    void showLines(const std::vector<PastedRows::Line> &lines); // the cursor is on the first that is refused
    bool isRefused(const QModelIndex &cell) const override;

private:
    QHash<int, int> m_refused; // the column, by row
};

} // namespace Tallymere
