#include "controls/grids/rowsgrid.h"

#include <QAbstractTableModel>
#include <QKeyEvent>

namespace Tallymere {

class RowsModel final : public QAbstractTableModel
{
public:
    RowsModel(QList<GridColumn> columns, QObject *parent)
        : QAbstractTableModel(parent)
        , m_columns(std::move(columns))
    {
    }

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
    int columnCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QString text = m_rows[static_cast<size_t>(index.row())].value(index.column());
        const Qt::Alignment alignment = m_columns[index.column()].alignment;
        if (role == Qt::DisplayRole)
            return text;
        if (role == Qt::TextAlignmentRole)
            return int(alignment | Qt::AlignVCenter);
        if (role == cellNoteRole && alignment.testFlag(Qt::AlignRight)
            && (text.startsWith(u'-') || text.startsWith(u'(')))
            return int(CellNote::Negative);
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::DisplayRole)
            return m_columns[section].title;
        return role == Qt::TextAlignmentRole ? QVariant(int(m_columns[section].alignment | Qt::AlignVCenter))
                                             : QVariant();
    }

private:
    const QList<GridColumn> m_columns;
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
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || currentRow() < 0)
        return DataGrid::keyPressEvent(event);
    Q_EMIT chosen(currentRow());
}

} // namespace Tallymere
