#pragma once

#include "controls/grids/cellnote.h"

#include <QStyledItemDelegate>

namespace Tallymere {

class DataGrid;

// Draws the cells of a grid: the same in every style of a desktop, in the colours of its palette.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CellDelegate(DataGrid *grid);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    int frameWidth() const; // around a cell that is typed into

private:
    QColor groundOf(const QModelIndex &index) const;
    QColor textColour(const QModelIndex &index, CellNote note, const QColor &ground) const;
    void drawText(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index, CellNote note,
                  const QColor &ground) const;
    void drawTick(QPainter &painter, const QRect &cell, const QColor &ground) const;
    void drawOpen(QPainter &painter, const QRect &cell, const QString &word) const;
    void drawMark(QPainter &painter, const QRect &cell, const QColor &colour) const;
    void drawFrame(QPainter &painter, const QRect &cell, const QColor &colour) const;

    DataGrid *m_grid;
};

} // namespace Tallymere
