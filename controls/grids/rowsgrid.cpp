#include "controls/grids/rowsgrid.h"

#include "controls/grids/columnsmodel.h"
#include "controls/windows/typing.h"

#include <QKeyEvent>

namespace Tallymere {

class RowsModel final : public ColumnsModel
{
public:
    using ColumnsModel::ColumnsModel;

    void setRows(std::vector<QStringList> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QString text = m_rows[static_cast<size_t>(index.row())].value(index.column());
        if (role == Qt::DisplayRole)
            return text;
        if (role == Qt::TextAlignmentRole)
            return side(index.column());
        if (role == cellNoteRole && side(index.column()).toInt() & Qt::AlignRight
            && (text.startsWith(u'-') || text.startsWith(u'(')))
            return int(CellNote::Negative);
        return {};
    }

private:
    std::vector<QStringList> m_rows;
};

RowsGrid::RowsGrid(QWidget *parent)
    : DataGrid(parent)
{
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &cell) { Q_EMIT chosen(cell.row()); });
}

void RowsGrid::setColumns(const QList<GridColumn> &columns)
{
    m_model = new RowsModel(columns, this);
    showModel(m_model, columns);
}

void RowsGrid::setRows(std::vector<QStringList> rows)
{
    m_model->setRows(std::move(rows));
    setCurrentIndex(m_model->index(0, 0));
}

QString RowsGrid::shownHint() const { return m_model && m_model->rowCount({}) == 0 ? hint() : QString(); }

void RowsGrid::keyPressEvent(QKeyEvent *event)
{
    const bool enter = isEnter(*event);
    if (!enter || currentRow() < 0)
        return DataGrid::keyPressEvent(event);
    Q_EMIT chosen(currentRow());
}

} // namespace Tallymere
