#include "controls/grids/figuresline.h"

#include "controls/grids/datagrid.h"
#include "controls/windows/look.h"

#include <QHeaderView>
#include <QItemSelectionModel>

using namespace Qt::StringLiterals;

namespace Tallymere {

FiguresLine::FiguresLine(QWidget *parent)
    : ElidedLabel(parent)
{
    setObjectName(u"lblFigures"_s);
    QSizePolicy policy = sizePolicy();
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

void FiguresLine::showFigures(const DataGrid &grid)
{
    m_figures = grid.cutFigures(grid.currentIndex().row());
    showAll();
}

void FiguresLine::setNote(const QString &note, Note kind)
{
    m_note = note;
    m_kind = kind;
    update();
    showAll();
}

void FiguresLine::showAll()
{
    const bool both = !m_note.isEmpty() && !m_figures.isEmpty();
    setText(both ? m_note + u"   "_s + m_figures : m_note + m_figures);
}

QColor FiguresLine::ink() const
{
    return m_kind == Note::Warning ? Look(palette()).on(palette().color(backgroundRole()), Look::Role::NoticeText)
                                   : ElidedLabel::ink();
}

} // namespace Tallymere
