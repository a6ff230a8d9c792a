#pragma once

#include "controls/grids/celldelegate.h"

namespace Tallymere {

class EntryGrid;

// The editor of the cells of a grid. Keys and the loss of the focus go to the grid, which alone decides when an
// entry is handed over.
class EntryDelegate final : public CellDelegate
{
    Q_OBJECT

public:
    explicit EntryDelegate(EntryGrid *grid);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void setEditorData(QWidget *, const QModelIndex &) const override { }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override { }

private:
    bool eventFilter(QObject *editor, QEvent *event) override;

    EntryGrid *m_grid;
};

} // namespace Tallymere
