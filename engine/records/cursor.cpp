#include "engine/records/cursor.h"

#include <algorithm>

namespace Engine {

void Cursor::to(Key key, std::optional<Row> row, int index)
{
    m_state = State::Known;
    m_key = std::move(key);
    m_row = std::move(row);
    m_index = index;
    m_doubtful = false;
    m_atEnd = false;
}

void Cursor::leave(State state)
{
    to({});
    m_state = state;
    m_formerIndex = 0;
}

void Cursor::listChanged()
{
    if (m_state != State::Known)
        return toFirst();
    if (m_index >= 0)
        m_formerIndex = m_index;
    to(m_key);
    m_doubtful = true;
}

bool Cursor::findIn(int count, const std::function<Key(int)> &at, const std::function<int(const Key &)> &indexOf)
{
    if (m_index >= 0)
        return false;
    if (count == 0) {
        toNothing();
        return false;
    }
    if (m_state != State::Known) {
        to(at(0), std::nullopt, 0);
        return false;
    }
    m_doubtful = false;
    // Mostly it is where it was.
    const int place = std::min(m_formerIndex, count - 1);
    const Key there = at(place);
    m_index = there == m_key ? place : indexOf(m_key);
    if (m_index >= 0)
        return false;
    to(there, std::nullopt, place);
    return true;
}

} // namespace Engine
