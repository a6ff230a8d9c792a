#pragma once

#include "controls/grids/listgrid.h"

#include <QObject>

namespace Tallymere {

// Sorting a list by its titles: a click on one sorts by its column, a second one the other way round. What the list is
// sorted by, in its own order too, has an arrow.
class ListSort final : public QObject
{
    Q_OBJECT

public:
    ListSort(ListGrid &grid, const Guard &guard); // freed with the grid

    bool canSortBy(int column) const;
    void sortBy(int column);
    int column() const; // -1 where the order shows in no column

Q_SIGNALS:
    void changed();

private:
    struct Shown
    {
        int column = -1;
        bool descending = false;

        bool operator==(const Shown &) const = default;
    };

    Shown ofOwnOrder() const;
    void sort(const Shown &wanted);
    void showArrow();

    ListGrid &m_grid;
    const Guard &m_guard;
    Engine::DataSet &m_set;
    Shown m_shown;
};

} // namespace Tallymere
