#pragma once

#include "base/gridcolumn.h"
#include "transactions/counting/countlist.h"

#include <functional>
#include <QAbstractTableModel>
#include <QColor>
#include <QCoreApplication>

namespace Tallymere {

// Shows a count to a grid. In the order of categories a heading stands before the items of each; it can be neither chosen
// nor typed into.
class CountModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { ItemNo, Category, Item, StandardCost, Prior, Quantity, Difference, UnitCost, ColumnCount };

    CountModel(const CountList &list, QObject *parent);
    static QList<GridColumn> gridColumns();

    void listChanged(); // other items, or another order
    void rowChanged(int item);
    // Whoever counts must not see what the books hold, nor what a count differs from it by.
    void setBlind(bool blind);

    // Between the rows of the grid and the items of the list; -1 for a heading.
    int itemAt(int row) const { return row < 0 || row >= rowCount() ? -1 : m_items[static_cast<size_t>(row)]; }
    int rowOf(int item) const;
    std::vector<int> headings() const; // their rows

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override; // by enterText

    std::function<bool(const QModelIndex &cell, const QString &text)> enterText; // as EntryGrid::enterText

private:
    QVariant headingData(int row, int role) const;
    QString text(const CountRow &row, int column, int role) const;
    QString quantityText(const CountRow &row) const;
    QString markText(const CountRow &row) const;
    QVariant look(const CountRow &row, int column, int role) const;

    const CountList &m_list;
    bool m_blind = false;
    const QList<GridColumn> m_columns = gridColumns();
    std::vector<int> m_items; // by row
};

} // namespace Tallymere
