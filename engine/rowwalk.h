#pragma once

#include "engine/dataset.h"
#include "engine/keylist.h"
#include "engine/rowsource.h"

namespace Engine {

class ReadMoment;

// All rows of an open set, one after the other, as they are at a moment: as filtered and in its order, rows that have
// come since its list was read among them. Neither moves the set nor changes what it has in hand. Memory follows the
// keys. (A query without key fields stays with what it read when it was opened.)
class RowWalk
{
public:
    RowWalk(const DataSet &set, ReadMoment &moment); // both outlive the object; reads the keys

    int count() const;
    bool next(Row &row); // false after the last. DataSet::valueIn() gives the calculated fields

private:
    const std::vector<Row> *m_memory;
    std::optional<RowSource> m_source;
    KeyList m_keys;
    std::vector<Row> m_window;
    int m_next = 0;
};

} // namespace Engine
