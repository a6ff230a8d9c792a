#pragma once

#include <QString>

namespace Tallymere {

class DataGrid;

// The widths of a grid's columns as a text to keep, by their fields and in design pixels: "ItemNo=110.00 Unit=80.00".
// The column that takes the surplus is not in it.
QString columnWidths(const DataGrid &grid);
// Columns that the text does not name keep their width; what it says of others, or damage in it, counts for nothing.
void setColumnWidths(DataGrid &grid, const QString &text);

} // namespace Tallymere
