#pragma once

#include "engine/records/dataset.h"

#include <list>

namespace Engine {

// The windows of rows that were looked at last. Memory follows these, not the length of the set.
class WindowCache
{
public:
    static constexpr int rowsPerWindow = 256;

    // The row at an index of the set, nullptr when its window is not in hand.
    Row *row(int index);
    // Takes over the window that the index lies in; the one unused for longest goes. References to rows of the
    // other windows stay valid.
    void insert(int index, std::vector<Row> rows);
    void clear() { m_windows.clear(); }

    static int windowStart(int index) { return index / rowsPerWindow * rowsPerWindow; }

private:
    static constexpr size_t capacity = 16;
    struct Window
    {
        int start = 0;
        std::vector<Row> rows;
    };
    std::list<Window> m_windows; // the latest used first
};

} // namespace Engine
