#pragma once

#include "engine/records/setlength.h"
#include "engine/store/keylist.h"

#include <map>

namespace Engine {

// The ordered keys of an open set as far as they are in hand: all of them, or of a long set its length and the parts that
// were looked at last. It reads nothing: whoever reads the set hands the parts over.
class SetKeys
{
public:
    static constexpr int partSize = 4096; // whole windows of rows
    static int partStart(int index) { return index / partSize * partSize; }

    SetKeys() = default; // none
    explicit SetKeys(KeyList all);
    explicit SetKeys(SetLength length); // so many rows, whose keys come in parts
    void makeRoom(size_t parts); // for so many, which stay in hand together
    void takePart(int index, KeyList part); // that the index lies in; what of it is missing has no row

    bool isWhole() const { return m_isWhole; }
    KeyList &all() { return m_all; } // of a whole one
    int count() const { return m_isWhole ? m_all.count() : m_length.count; }
    const SetLength &length() const { return m_length; } // of one that is not whole
    bool hasInHand(int index) const { return m_isWhole || m_parts.contains(partStart(index)); }
    // What follows is asked of keys in hand.
    Key at(int index) const;
    std::span<const qint64> slice(int first, int keys) const; // within a part
    int find(const Key &key) const; // -1 when it is not in hand, or not there

private:
    static constexpr size_t partsKept = 64;

    bool m_isWhole = true;
    KeyList m_all;
    SetLength m_length;
    std::map<int, KeyList> m_parts; // by their first index
};

} // namespace Engine
