#include "controls/grids/figuresline.h"

#include "controls/grids/datagrid.h"
#include "controls/windows/look.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPainter>

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
    setToolTip(seen() == text() ? QString() : text());
}

QString FiguresLine::seen() const { return shortened(text(), fontMetrics(), contentsRect().width()); }

void FiguresLine::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    showAll();
}

void FiguresLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Look look(palette());
    painter.setPen(m_kind == Note::Warning ? look.on(palette().color(backgroundRole()), Look::Role::NoticeText)
                                           : palette().color(foregroundRole()));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, seen());
}

} // namespace Tallymere
