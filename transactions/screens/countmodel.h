#pragma once

#include "controls/grids/groupedmodel.h"
#include "transactions/counting/countlist.h"

#include <functional>
#include <QColor>
#include <QCoreApplication>

namespace Tallymere {

// Shows a count to a grid. In the order of categories a heading stands before the items of each; it can be neither chosen
// nor typed into.
class CountModel final : public GroupedModel
{
    Q_OBJECT

public:
    enum Column { ItemNo, Category, Item, StandardCost, Prior, Quantity, Difference, UnitCost, ColumnCount };

    CountModel(const CountList &list, QObject *parent);
    static QList<GridColumn> gridColumns();

    void listChanged(); // other items, or another order
    // Whoever counts must not see what the books hold, nor what a count differs from it by.
    void setBlind(bool blind);

    bool setData(const QModelIndex &index, const QVariant &value, int role) override; // by enterText

    std::function<bool(const QModelIndex &cell, const QString &text)> enterText; // as EntryGrid::enterText

private:
    QString headingText(int firstItem) const override;
    QVariant itemData(int item, int column, int role) const override;
    bool isEditable(int column) const override;
    QString text(const CountRow &row, int column, int role) const;
    QString quantityText(const CountRow &row) const;
    QString markText(const CountRow &row) const;
    QVariant look(const CountRow &row, int column, int role) const;

    const CountList &m_list;
    bool m_blind = false;
};

} // namespace Tallymere
