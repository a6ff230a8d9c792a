#pragma once

#include <QList>
#include <QtGlobal>
#include <span>
#include <vector>

namespace Engine {

using Key = QList<qint64>;

// The ordered keys of a set, packed: a million rows with a key of one number take eight megabytes.
class KeyList
{
public:
    explicit KeyList(int width = 1)
        : m_width(static_cast<size_t>(width))
    {
    }

    int width() const { return static_cast<int>(m_width); } // numbers that make one key
    int count() const { return static_cast<int>(m_numbers.size() / m_width); }
    void append(qint64 number) { m_numbers.push_back(number); } // one number after the other
    Key at(int index) const;
    int find(const Key &key) const; // -1 when it is not there
    void removeAt(int index);
    // The numbers of a run of keys.
    std::span<const qint64> slice(int first, int keys) const;

private:
    size_t m_width;
    std::vector<qint64> m_numbers;
};

} // namespace Engine
