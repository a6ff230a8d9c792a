#pragma once

#include "base/gridcolumn.h"

#include <QAbstractTableModel>

namespace Tallymere {

// Rows in memory below the columns of a grid: their titles and sides.
class ColumnsModel : public QAbstractTableModel
{
public:
    ColumnsModel(QList<GridColumn> columns, QObject *parent);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    // Of the cells and the title.
    QVariant side(int column) const { return QVariant(m_columns[column].alignment | Qt::AlignVCenter); }

private:
    const QList<GridColumn> m_columns;
};

} // namespace Tallymere
