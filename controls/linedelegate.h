#pragma once

#include <QStyledItemDelegate>

namespace Tallymere {

class LineGrid;

// The editor of a line grid's cells. Keys and the loss of the focus go to the grid, which alone decides when an
// entry is handed over.
class LineDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit LineDelegate(LineGrid *grid);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setEditorData(QWidget *, const QModelIndex &) const override { }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override { }

private:
    bool eventFilter(QObject *editor, QEvent *event) override;

    LineGrid *m_grid;
};

} // namespace Tallymere
