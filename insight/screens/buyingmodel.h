#pragma once

#include "controls/grids/cellnote.h"
#include "controls/grids/groupedmodel.h"
#include "insight/buyinglist.h"

namespace Tallymere {

// Shows what to buy to a grid. A heading stands before the items of each vendor; it can be neither chosen nor typed into.
class BuyingModel final : public GroupedModel
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

private:
    QString headingText(int firstItem) const override;
    QVariant itemData(int item, int column, int role) const override;
    bool isEditable(int column) const override { return column == Quantity; }
    CellNote noteOf(int column, int item) const;

    const BuyingList &m_list;
};

} // namespace Tallymere
