#include "engine/records/setkeys.h"

#include <limits>

namespace Engine {

SetKeys::SetKeys(KeyList all)
    : m_all(std::move(all))
{
}

SetKeys::SetKeys(SetLength length)
    : m_isWhole(false)
    , m_length(std::move(length))
{
}

void SetKeys::makeRoom(size_t parts)
{
    if (m_parts.size() + parts > partsKept)
        m_parts.clear();
}

void SetKeys::takePart(int index, KeyList part)
{
    const int start = partStart(index);
    while (part.count() < std::min(partSize, m_length.count - start))
        part.append(std::numeric_limits<qint64>::min());
    m_parts.insert_or_assign(start, std::move(part));
}

Key SetKeys::at(int index) const
{
    const auto numbers = slice(index, 1);
    return Key(numbers.begin(), numbers.end());
}

std::span<const qint64> SetKeys::slice(int first, int keys) const
{
    if (m_isWhole)
        return m_all.slice(first, keys);
    return m_parts.at(partStart(first)).slice(first % partSize, keys);
}

int SetKeys::find(const Key &key) const
{
    if (m_isWhole)
        return m_all.find(key);
    for (const auto &[start, part] : m_parts) {
        if (const int index = part.find(key); index >= 0)
            return start + index;
    }
    return -1;
}

} // namespace Engine
