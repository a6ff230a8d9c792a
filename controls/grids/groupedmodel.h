#pragma once

#include "controls/grids/columnsmodel.h"

#include <functional>
#include <vector>

namespace Tallymere {

// The items of a list with a heading before each group of them, which goes over all columns and can be neither chosen nor typed
// into.
class GroupedModel : public ColumnsModel
{
public:
    using ColumnsModel::ColumnsModel;

    void rowChanged(int item);

    // Between the rows of the grid and the items of the list; -1 for a heading.
    int itemAt(int row) const { return row < 0 || row >= rowCount() ? -1 : m_items[static_cast<size_t>(row)]; }
    int rowOf(int item) const;
    std::vector<int> headings() const; // their rows

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    // Of a list with other items, or in another order.
    void setItems(int count, const std::function<bool(int item)> &beginsGroup);
    static QFont bold();

    virtual QString headingText(int firstItem) const = 0;
    virtual QVariant itemData(int item, int column, int role) const = 0;
    virtual bool isEditable(int column) const = 0;

private:
    QVariant headingData(int row, int role) const;

    std::vector<int> m_items; // by row
};

} // namespace Tallymere
