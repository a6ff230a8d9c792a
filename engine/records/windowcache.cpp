#include "engine/records/windowcache.h"

#include <algorithm>

namespace Engine {

Row *WindowCache::row(int index)
{
    const int start = windowStart(index);
    const auto window = std::find_if(m_windows.begin(), m_windows.end(),
                                     [start](const Window &candidate) { return candidate.start == start; });
    if (window == m_windows.end())
        return nullptr;
    if (window != m_windows.begin())
        m_windows.splice(m_windows.begin(), m_windows, window);
    return &window->rows[static_cast<size_t>(index - start)];
}

void WindowCache::insert(int index, std::vector<Row> rows)
{
    if (m_windows.size() == capacity)
        m_windows.pop_back();
    m_windows.push_front({windowStart(index), std::move(rows)});
}

} // namespace Engine
