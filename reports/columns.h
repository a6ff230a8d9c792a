#pragma once

#include "printing/reportlayout.h"

namespace Tallymere {

// The columns that reports have alike. Widths are shares of the line.
namespace Columns {

Printing::Column text(const QString &field, const QString &title, double width); // wraps
Printing::Column cutText(const QString &field, const QString &title, double width); // stays on its line
Printing::Column itemNo();
Printing::Column description(); // of the item
Printing::Column location();
Printing::Column date(const QString &field, const QString &title);
Printing::Column mark(const QString &field, const QString &title); // "Yes" or nothing
// With as many decimals as they have.
Printing::Column quantity(const QString &field, const QString &title = {});
Printing::Column unitCost(const QString &field = QStringLiteral("UnitCost"), const QString &title = {});
Printing::Column amount(const QString &field, const QString &title);

} // namespace Columns

// The group of the items of a type. One whose type is gone, or has no name, goes by its number.
Printing::Group typeGroup(const QString &totalText, bool heading = true);

} // namespace Tallymere
