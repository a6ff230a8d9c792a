#pragma once

#include "controls/grids/datagrid.h"
#include "transactions/counting/countdifferences.h"

#include <optional>

namespace Tallymere {

class DifferenceModel;

// The differences of a count, a bar for each: what is missing to the left of a line, what is over to the right of it; where
// only one of them occurs, all to the right.
class DifferenceGrid final : public DataGrid
{
    Q_OBJECT

public:
    explicit DifferenceGrid(QWidget *parent = nullptr);

    void showDifferences(const CountDifferences &differences); // which outlive the grid
    std::optional<qint64> currentItem() const;

    bool hasFocusBar(const QModelIndex &cell) const override;
    QString shownHint() const override;

private:
    DifferenceModel *m_model = nullptr;
};

} // namespace Tallymere
