#include "engine/records/rowwalk.h"

#include "engine/records/datasetprivate.h"
#include "engine/store/readmoment.h"

namespace Engine {

RowWalk::RowWalk(const DataSet &set, ReadMoment &moment)
    : m_source(DataSetReader(set).sourceOn(moment.database().connection()))
    , m_keys(m_source.keys())
{
}

RowWalk::RowWalk(const DataSet &set, ReadMoment &moment, KeyList keys)
    : m_source(DataSetReader(set).sourceOn(moment.database().connection()))
    , m_keys(std::move(keys))
{
}

bool RowWalk::next(Row &row)
{
    if (m_next >= count())
        return false;
    const int start = WindowCache::windowStart(m_next);
    if (m_next == start)
        m_window = m_source.rows(m_keys.slice(start, std::min(WindowCache::rowsPerWindow, count() - start)));
    row = std::move(m_window[static_cast<size_t>(m_next++ - start)]);
    return true;
}

} // namespace Engine
