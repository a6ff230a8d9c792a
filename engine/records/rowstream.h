#pragma once

#include "engine/records/dataset.h"
#include "engine/records/rowsource.h"

namespace Engine {

// All rows of an open set, as filtered and in its order, one after the other, by one statement over the set's connection.
// For whoever goes over all of them once: neither keys nor windows are read, and the set does not move. What else that
// connection is asked for meanwhile has a server hand over all that is left, which is held in memory then.
class RowStream
{
public:
    explicit RowStream(const DataSet &set); // which outlives the object, and stays as it is meanwhile
    bool next(Row &row); // false after the last. DataSet::valueIn() gives the calculated fields

private:
    const std::vector<Row> *m_memory; // of a query without key fields
    size_t m_next = 0; // of those
    const RowSource *m_source = nullptr;
    StatementPtr m_rows;
};

} // namespace Engine
