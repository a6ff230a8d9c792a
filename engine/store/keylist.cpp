#include "engine/store/keylist.h"

#include <algorithm>

namespace Engine {

Key KeyList::at(int index) const
{
    const auto numbers = slice(index, 1);
    return Key(numbers.begin(), numbers.end());
}

int KeyList::find(const Key &key) const
{
    if (key.size() != width())
        return -1;
    for (auto at = m_numbers.begin();;) {
        at = std::find(at, m_numbers.end(), key.first());
        if (at == m_numbers.end())
            return -1;
        const auto offset = at - m_numbers.begin();
        if (offset % width() == 0 && std::equal(key.begin(), key.end(), at))
            return static_cast<int>(offset / width());
        ++at;
    }
}

void KeyList::removeAt(int index)
{
    const auto first = m_numbers.begin() + static_cast<std::ptrdiff_t>(index) * width();
    m_numbers.erase(first, first + width());
}

std::span<const qint64> KeyList::slice(int first, int keys) const
{
    return std::span(m_numbers).subspan(static_cast<size_t>(first) * m_width, static_cast<size_t>(keys) * m_width);
}

} // namespace Engine
