#pragma once

#include "controls/grids/columnsmodel.h"
#include "transactions/counting/countdifferences.h"

#include <QCoreApplication>

namespace Tallymere {

// Shows the differences of a count to a grid.
class DifferenceModel final : public ColumnsModel
{
    Q_OBJECT

public:
    enum Column { ItemNo, Item, Quantity, UnitCost, Value, Bar, ColumnCount };

    DifferenceModel(const CountDifferences &differences, QObject *parent);
    static QList<GridColumn> gridColumns();

    const CountDifference &at(int row) const { return m_differences.items()[static_cast<size_t>(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    static QString text(const CountDifference &item, int column);

    const CountDifferences &m_differences;
};

} // namespace Tallymere
