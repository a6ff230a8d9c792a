#pragma once

#include "engine/records/dataset.h"
#include "engine/records/rowsource.h"
#include "engine/store/keylist.h"

namespace Engine {

class ReadMoment;

// Rows of an open set that has keys, one after the other, as they are at a moment. Neither moves the set nor changes what
// it has in hand. Memory follows the keys.
class RowWalk
{
public:
    // All rows, as filtered and in the set's order, those that have come since its list was read among them. Set and
    // moment outlive the object.
    RowWalk(const DataSet &set, ReadMoment &moment);
    // The rows of these keys, in their order; one that is gone is a row of nulls.
    RowWalk(const DataSet &set, ReadMoment &moment, KeyList keys);

    int count() const { return m_keys.count(); }
    bool next(Row &row); // false after the last. DataSet::valueIn() gives the calculated fields

private:
    RowSource m_source;
    KeyList m_keys;
    std::vector<Row> m_window;
    int m_next = 0;
};

} // namespace Engine
