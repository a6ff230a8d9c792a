#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace Tallymere {

// The rows of a plain list, with the height, the space and the chosen row of the grids.
class ListRows final : public QStyledItemDelegate
{
public:
    explicit ListRows(QAbstractItemView &list);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const QAbstractItemView &m_list;
};

} // namespace Tallymere
