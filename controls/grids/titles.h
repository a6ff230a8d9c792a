#pragma once

#include <QHeaderView>

namespace Tallymere {

class DataGrid;

// The titles of a grid's columns, drawn as its cells are. They keep apart, also one at the right of its column from the next
// one at the left.
class Titles final : public QHeaderView
{
    Q_OBJECT

public:
    explicit Titles(DataGrid *grid);

    int leastWidth(const QString &title) const; // of a column that shows it whole
    int widthWithArrow(const QString &title) const; // also when the list is sorted by it

protected:
    void paintSection(QPainter *painter, const QRect &section, int column) const override;
    void paintEvent(QPaintEvent *event) override;
    QSize sectionSizeFromContents(int column) const override;
    void changeEvent(QEvent *event) override;

private:
    void takeFont();
    int arrowWidth(int column) const;
    void drawArrow(QPainter &painter, const QRectF &room) const;

    DataGrid *m_grid;
};

} // namespace Tallymere
