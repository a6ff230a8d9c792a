#include "engine/records/rowstream.h"

#include "engine/records/datasetprivate.h"

namespace Engine {

RowStream::RowStream(const DataSet &set)
    : m_memory(DataSetReader(set).memory())
{
    if (m_memory)
        return;
    m_source = &DataSetReader(set).source();
    m_rows = m_source->allRows();
}

bool RowStream::next(Row &row)
{
    if (m_memory) {
        if (m_next >= m_memory->size())
            return false;
        row = (*m_memory)[m_next++];
        return true;
    }
    std::optional<Row> found = m_rows ? m_source->takeRow(*m_rows) : std::nullopt;
    if (!found)
        return false;
    row = std::move(*found);
    return true;
}

} // namespace Engine
