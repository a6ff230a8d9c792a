#pragma once

#include "controls/grids/listgrid.h"

#include <QTimer>

class QLabel;
class QStatusBar;

namespace Tallymere {

class ElidedLabel;
class FiguresLine;
class SumLabel;

// The status line of a list: on which row of how many the cursor is, how many are selected, what is being searched for,
// and the figures of the row that its columns are too narrow for; and of which time the rows are, where they are meant to
// come from a standby server. Before the whole list has been read only that is said.
class ListStatus : public QObject
{
    Q_OBJECT

public:
    ListStatus(ListGrid &grid, QStatusBar &bar);

    void say(const QString &text); // for a moment, in place of the rows
    void setSum(const QString &label, const QString &figure); // of the rows, at the right; an empty figure is none

private:
    void showRows();
    void showSearch();
    void showOrigin();
    QString rowsText() const;

    ListGrid &m_grid;
    QStatusBar &m_bar;
    QTimer m_moment; // for what is still being read
    QLabel *m_rows;
    ElidedLabel *m_search;
    FiguresLine *m_figures;
    SumLabel *m_sum = nullptr; // of a list that tells one
};

} // namespace Tallymere
