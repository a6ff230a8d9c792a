#include "engine/rowwalk.h"

#include "engine/datasetprivate.h"
#include "engine/readmoment.h"

namespace Engine {

RowWalk::RowWalk(const DataSet &set, ReadMoment &moment)
    : m_memory(DataSetReader(set).memory())
{
    if (m_memory)
        return;
    m_source.emplace(DataSetReader(set).sourceOn(moment.database().connection()));
    m_keys = m_source->keys();
}

int RowWalk::count() const { return m_memory ? static_cast<int>(m_memory->size()) : m_keys.count(); }

bool RowWalk::next(Row &row)
{
    if (m_next >= count())
        return false;
    if (m_memory) {
        row = (*m_memory)[static_cast<size_t>(m_next++)];
        return true;
    }
    const int start = WindowCache::windowStart(m_next);
    if (m_next == start)
        m_window = m_source->rows(m_keys.slice(start, std::min(WindowCache::rowsPerWindow, count() - start)));
    row = std::move(m_window[static_cast<size_t>(m_next++ - start)]);
    return true;
}

} // namespace Engine
