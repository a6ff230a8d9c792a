#include "engine/records/rowwalk.h"

#include "engine/records/datasetprivate.h"
#include "engine/store/readmoment.h"

namespace Engine {

RowWalk::RowWalk(const DataSet &set, ReadMoment &moment)
    : RowWalk(set, moment, KeyList())
{
    if (m_source)
        m_keys = m_source->keys();
    for (size_t i = 0; m_memory && i < m_memory->size(); ++i)
        m_keys.append(static_cast<qint64>(i));
}

RowWalk::RowWalk(const DataSet &set, ReadMoment &moment, KeyList keys)
    : m_memory(DataSetReader(set).memory())
    , m_keys(std::move(keys))
{
    if (!m_memory)
        m_source.emplace(DataSetReader(set).sourceOn(moment.database().connection()));
}

bool RowWalk::next(Row &row)
{
    if (m_next >= count())
        return false;
    if (m_memory) {
        row = (*m_memory)[static_cast<size_t>(m_keys.slice(m_next++, 1)[0])];
        return true;
    }
    const int start = WindowCache::windowStart(m_next);
    if (m_next == start)
        m_window = m_source->rows(m_keys.slice(start, std::min(WindowCache::rowsPerWindow, count() - start)));
    row = std::move(m_window[static_cast<size_t>(m_next++ - start)]);
    return true;
}

} // namespace Engine
