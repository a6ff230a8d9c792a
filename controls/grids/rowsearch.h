#pragma once

#include "base/textmatch.h"

#include <optional>

namespace Tallymere {

class TableModel;

// Looks for words in the rows of a list as they are shown, figures and dates also as they are stored: each word in some column
// but those that are set off, which tell about the others at a cost.
// It goes on in steps, so that a long list is no reason to wait.
class RowSearch
{
public:
    explicit RowSearch(const TableModel &model)
        : m_model(model)
    {
    }

    void begin(const TextMatch &what, int row); // all rows, from that one on round to it
    void narrow(const TextMatch &what)
    {
        m_what = what;
    } // goes on where it is: what is looked for has grown longer
    void end() { m_left = 0; }
    bool isOn() const { return m_left > 0; }
    int percent() const; // of the rows that have been looked at
    int looked() const; // at so many rows
    // Looks on for so long, and a little more. The row that has been found; the search is on until there are no more rows.
    std::optional<int> step(qint64 milliseconds);

private:
    bool isIn(int row) const;

    const TableModel &m_model;
    TextMatch m_what;
    int m_next = 0; // row to be looked at
    int m_left = 0; // rows to be looked at
};

} // namespace Tallymere
