#pragma once

#include <QStyledItemDelegate>

namespace Tallymere {

// Paints what has been found: the heading of a group, or the sign, the title and at the right the detail of an answer.
class FindingDelegate final : public QStyledItemDelegate
{
public:
    enum Data { Detail = Qt::UserRole, Sign, IsHeading };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace Tallymere
