#pragma once

#include "engine/records/dataset.h"
#include "engine/store/keylist.h"

#include <functional>

namespace Engine {

// Which record of an ordered set is current, and what of it is in hand. It reads nothing: whoever reads the set tells
// it what there is.
//
// The record is known in one of three ways. Unread: it is the first, which nobody has asked for yet. By key: its key,
// and mostly its row, are in hand, but not its index, because the list was not read. By index.
class Cursor
{
public:
    bool isUnread() const { return m_state == State::Unread; }
    bool isEmpty() const { return m_state == State::Empty; } // the set has no record
    bool isFirst() const { return isUnread() || m_index == 0; }
    bool isAt(const Key &key) const { return m_state == State::Known && m_key == key; }
    bool isSettled() const { return isEmpty() || (m_state == State::Known && !m_doubtful); }
    const Key &key() const { return m_key; }
    int index() const { return m_index; } // -1 when it is not known
    const std::optional<Row> &row() const { return m_row; }
    bool atEnd() const { return m_atEnd; }

    void toFirst() { leave(State::Unread); }
    void toNothing() { leave(State::Empty); }
    void to(Key key, std::optional<Row> row = std::nullopt, int index = -1);
    void takeRow(Row row) { m_row = std::move(row); } // the record's values are these
    void arrive() { m_atEnd = false; } // at the record that it is on already
    void pastEnd() { m_atEnd = true; }

    // The list is new, and may have lost the record. What stood there before is remembered.
    void listChanged();
    void confirm() { m_doubtful = false; } // the list still has the record
    // Finds the record among so many keys. True when it is gone, and what has taken its place is current.
    bool findIn(int count, const std::function<Key(int)> &at, const std::function<int(const Key &)> &indexOf);

private:
    enum class State { Unread, Empty, Known };

    void leave(State state);

    State m_state = State::Unread;
    Key m_key;
    std::optional<Row> m_row; // when it is held by itself
    int m_index = -1;
    int m_formerIndex = 0; // in the list before
    bool m_doubtful = false; // the list may have lost the record
    bool m_atEnd = false;
};

} // namespace Engine
