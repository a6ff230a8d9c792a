#include "controls/grids/figuresline.h"

#include "controls/grids/datagrid.h"

#include <QHeaderView>
#include <QItemSelectionModel>

using namespace Qt::StringLiterals;

namespace Tallymere {

FiguresLine::FiguresLine(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(u"lblFigures"_s);
    setTextFormat(Qt::PlainText);
    // However long the figures are, they must not widen the window.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHorizontalStretch(1);
    setSizePolicy(policy);
}

void FiguresLine::follow(const DataGrid &grid)
{
    const auto show = [this, &grid] { showFigures(grid); };
    connect(grid.selectionModel(), &QItemSelectionModel::currentChanged, this, show);
    connect(grid.model(), &QAbstractItemModel::dataChanged, this, show);
    connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, show);
    show();
}

void FiguresLine::showFigures(const DataGrid &grid) { setText(grid.cutFigures(grid.currentIndex().row())); }

} // namespace Tallymere
