#pragma once

#include "controls/grids/rowsgrid.h"
#include "import/importplan.h"

namespace Tallymere {

// Shows the rows of a file that is to be brought in. What is wrong with one stands before its texts, framed.
class ImportRowsGrid final : public RowsGrid
{
    Q_OBJECT

public:
    ImportRowsGrid(const ImportPlan &plan, QWidget *parent);

    void showRows(const std::vector<ImportPlan::Row> &rows); // the cursor is on the first that is refused
    bool isRefused(const QModelIndex &cell) const override;

private:
    std::vector<bool> m_faulty; // by row
};

} // namespace Tallymere
