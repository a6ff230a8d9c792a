#pragma once

#include "engine/records/table.h"

#include <optional>
#include <QHash>
#include <utility>
#include <vector>

namespace Tallymere {

struct DocumentKind;

// What is on hand of the item of a line, at the location of its document, and what will be once the document has been
// posted up to that line. Nothing for a posted document, a line without an item, and an item that has no balance and by
// its type needs none. Looked up once, for all lines together; whoever shows it says when it may be another.
class LineStock
{
public:
    // The tables and the kind outlive the object.
    LineStock(const Engine::Table &header, const Engine::Table &lines, const DocumentKind &kind);

    void forget(); // all of it
    void linesChanged(); // lines have been stored or removed

    // Of a line, as it is in hand.
    std::optional<double> onHand(const Engine::DataSet &line);
    std::optional<double> afterwards(const Engine::DataSet &line);

private:
    using Account = std::pair<int, int>; // item and location

    std::optional<double> balance(Account account);
    double before(int item, int seq); // what the lines before take or bring
    Engine::StatementPtr askLines() const;
    void takeLines(Engine::Statement &rows);

    const Engine::Table &m_header;
    const Engine::Table &m_lines;
    const DocumentKind &m_kind;
    QHash<Account, std::optional<double>> m_balances;
    int m_location = 0; // that the items of all stored lines have been looked up for
    struct Part
    {
        int seq;
        double sum; // of the quantities up to it
    };
    std::optional<QHash<int, std::vector<Part>>> m_parts; // by item
};

} // namespace Tallymere
