#include "transactions/screens/differencegrid.h"

#include "controls/grids/celldelegate.h"
#include "controls/windows/screenmetrics.h"
#include "transactions/screens/differencemodel.h"

#include <algorithm>
#include <cmath>
#include <QPainter>

namespace Tallymere {

namespace {

constexpr int barMargin = 7; // design pixels, above and below
constexpr int barCorner = 2;
constexpr int leastBar = 1; // what is worth something is seen

// How long the bars of a column are, and where.
class BarScale
{
public:
    explicit BarScale(const CountDifferences &differences)
    {
        for (const CountDifference &item : differences.items()) {
            const double value = item.value.toDouble();
            double &side = value < 0 ? m_missing : m_over;
            side = std::max(side, std::abs(value));
        }
    }

    bool hasBothSides() const { return m_missing > 0 && m_over > 0; }
    double lineIn(const QRectF &room) const
    {
        return room.left() + (hasBothSides() ? room.width() * m_missing / (m_missing + m_over) : 0);
    }
    QRectF barIn(const QRectF &room, double value, double least) const
    {
        const double length = std::max(room.width() * std::abs(value) / (m_missing + m_over), least);
        const double line = lineIn(room);
        return {hasBothSides() && value < 0 ? line - length : line, room.top(), length, room.height()};
    }

private:
    double m_missing = 0; // the largest of each side
    double m_over = 0;
};

class BarDelegate final : public CellDelegate
{
public:
    BarDelegate(DifferenceGrid *grid, const CountDifferences &differences)
        : CellDelegate(grid)
        , m_grid(*grid)
        , m_differences(differences)
        , m_scale(differences)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        CellDelegate::paint(painter, option, index); // ground and line
        const int padding = m_grid.cellPadding();
        const QRectF room = QRectF(option.rect).adjusted(padding, 0, -padding, -1);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (const double value = m_differences.items()[static_cast<size_t>(index.row())].value.toDouble();
            value != 0)
            drawBar(*painter, room, value, groundOf(index));
        if (m_scale.hasBothSides())
            painter->fillRect(QRectF(std::floor(m_scale.lineIn(room)), room.top(), 1, room.height() + 1),
                              m_grid.look().on(groundOf(index), Look::Role::SecondText));
        painter->restore();
    }

private:
    void drawBar(QPainter &painter, const QRectF &room, double value, const QColor &ground) const
    {
        const int margin = scaled(&m_grid, barMargin);
        const int corner = scaled(&m_grid, barCorner);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_grid.look().on(ground, value < 0 ? Look::Role::Negative : Look::Role::Accent));
        painter.drawRoundedRect(
            m_scale.barIn(room.adjusted(0, margin, 0, -margin), value, scaled(&m_grid, leastBar)), corner, corner);
    }

    QColor groundOf(const QModelIndex &index) const
    {
        return m_grid.cellState(index) == DataGrid::CellState::Plain
            ? m_grid.palette().color(QPalette::Active, QPalette::Base)
            : m_grid.look().colour(Look::Role::ChosenRow);
    }

    const DifferenceGrid &m_grid;
    const CountDifferences &m_differences;
    const BarScale m_scale;
};

} // namespace

DifferenceGrid::DifferenceGrid(QWidget *parent)
    : DataGrid(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
}

void DifferenceGrid::showDifferences(const CountDifferences &differences)
{
    m_model = new DifferenceModel(differences, this);
    showModel(m_model, DifferenceModel::gridColumns());
    setItemDelegateForColumn(DifferenceModel::Bar, new BarDelegate(this, differences));
    if (m_model->rowCount() > 0)
        setCurrentIndex(m_model->index(0, 0));
}

std::optional<qint64> DifferenceGrid::currentItem() const
{
    return currentIndex().isValid() ? std::optional(m_model->at(currentIndex().row()).itemId) : std::nullopt;
}

bool DifferenceGrid::hasFocusBar(const QModelIndex &cell) const
{
    return cell.column() == 0 && cell.row() == currentIndex().row() && takesKeys();
}

QString DifferenceGrid::shownHint() const { return m_model && m_model->rowCount() == 0 ? hint() : QString(); }

} // namespace Tallymere
