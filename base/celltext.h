#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace Tallymere {

// The rows of cells that a text holds as spreadsheets put it on the clipboard: tabs between cells, a line each row. A cell
// in quotes may hold tabs, line breaks and, doubled, quotes; one that only begins with a quote stands as it is. Rows
// without any text are left out.
struct CellRow
{
    int number = 0; // of the row in the text, from 1
    QStringList cells;
};
std::vector<CellRow> cellRows(const QString &text);

} // namespace Tallymere
