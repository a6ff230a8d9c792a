#pragma once

#include "base/celltext.h"
#include "transactions/documents/documentkind.h"

#include <functional>

namespace Tallymere {

// What the columns of rows from a spreadsheet stand for, as their titles or what they hold tell.
struct PastedColumns
{
    bool hasTitles = false; // the first row is none of the lines
    QStringList fields; // of the kind's lines, one for each column; empty for a column that is not used
};

// How a cell is judged.
struct CellJudges
{
    std::function<bool(const QString &cell)> isItemNo; // of an item that there is
    std::function<bool(const QString &cell)> isDescription; // of one
    std::function<bool(const QString &cell)> isNumber;
};

// A title counts more than what stands below it. Of two columns of numbers without titles the one with the looks of money
// is the cost, and otherwise the second; a kind that does not ask for a cost takes one from a column with its title only.
PastedColumns recognizedColumns(const DocumentKind &kind, const std::vector<CellRow> &rows,
                                const CellJudges &judges);

qsizetype columnCountOf(const std::vector<CellRow> &rows); // up to the last one that holds something

} // namespace Tallymere
