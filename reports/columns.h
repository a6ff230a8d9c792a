#pragma once

#include "data/fields.h"
#include "printing/reportlayout.h"

namespace Tallymere {

// The columns that reports have alike. Widths are shares of the line. A constant of a field that holds something else than
// the column shows does not compile.
namespace Columns {

using enum Engine::FieldType;

Printing::Column text(Engine::TextName field, const QString &title, double width); // wraps
Printing::Column cutText(Engine::TextName field, const QString &title, double width); // stays on its line
Printing::Column itemNo();
Printing::Column description(); // of the item
Printing::Column location();
Printing::Column date(Engine::NameOf<Date> field, const QString &title);
Printing::Column mark(Engine::NameOf<Boolean> field, const QString &title); // "Yes" or nothing
// With as many decimals as they have.
Printing::Column quantity(Engine::NameOf<Float> field, const QString &title = {});
Printing::Column unitCost(Engine::NameOf<Money> field = Fields::UnitCost, const QString &title = {});
Printing::Column amount(Engine::NameOf<Money> field, const QString &title);

} // namespace Columns

// The group of the items of a type. One whose type is gone, or has no name, goes by its number.
Printing::Group typeGroup(const QString &totalText, bool heading = true);

} // namespace Tallymere
