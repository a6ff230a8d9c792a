#pragma once

#include "base/gridcolumn.h"
#include "controls/grids/cellnote.h"
#include "insight/buyinglist.h"

#include <QAbstractTableModel>

namespace Tallymere {

// Shows what to buy to a grid. A heading stands before the items of each vendor; it can be neither chosen nor typed into.
class BuyingModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        ItemNo,
        Description,
        UsePerWeek,
        OnHand,
        Unposted,
        DaysLeft,
        LastCost,
        Proposed,
        Quantity,
        ColumnCount
    };

    BuyingModel(const BuyingList &list, QObject *parent);
    static QList<GridColumn> gridColumns();

    void listChanged();
    void rowChanged(int item);

    // Between the rows of the grid and those of the list; -1 for a heading.
    int itemAt(int row) const { return row < 0 || row >= rowCount() ? -1 : m_items[static_cast<size_t>(row)]; }
    int rowOf(int item) const;
    std::vector<int> headings() const; // their rows

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QVariant headingData(int row, int role) const;
    CellNote noteOf(int column, int item) const;

    const BuyingList &m_list;
    const QList<GridColumn> m_columns = gridColumns();
    std::vector<int> m_items; // by row
};

} // namespace Tallymere
