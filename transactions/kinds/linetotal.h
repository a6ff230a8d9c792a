#pragma once

#include "engine/records/table.h"

#include <optional>
#include <QHash>

namespace Tallymere {

struct DocumentKind;

// What the lines of a document come to, each at the cost that it says itself: its quantity times that, to the cent. The
// line in hand counts as it stands. The others are read in one statement, and again when they may be others.
class LineTotal
{
public:
    // The tables and the kind outlive the object.
    LineTotal(const Engine::Table &header, const Engine::Table &lines, const DocumentKind &kind);

    void forget() { m_stored.reset(); }
    // Of a line without quantity or cost, and where it is no amount of money, nothing.
    std::optional<Engine::Money> of(const Engine::DataSet &line) const;
    std::optional<Engine::Money> sum(); // nothing where it is more than an amount of money can be

private:
    void readLines();

    const Engine::Table &m_header;
    const Engine::Table &m_lines;
    const DocumentKind &m_kind;
    std::optional<QHash<int, Engine::Money>> m_stored; // by number of the line
};

} // namespace Tallymere
