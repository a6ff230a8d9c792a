#pragma once

#include "engine/values/fieldname.h"

// What the rows of reports hold besides stored fields: what a query sums up and what readers of rows work out.

namespace Tallymere::ReportFields {

using enum Engine::FieldType;

// Of the balances of an item together (BalanceQueries::byItem)
inline constexpr Engine::FieldName<Float> ItemQtyOnHand{u"ItemQtyOnHand"};

// Values (valueRows): of an item, and of one at a location
inline constexpr Engine::FieldName<Money> ItemValue{u"ItemValue"};
inline constexpr Engine::FieldName<Money> ItemWhseValue{u"ItemWhseValue"};

// Stock after each movement (perpetualRows); a vendor's balance is money
inline constexpr Engine::FieldName<Float> Balance{u"Balance"};

// What a period has moved (perpetualSummaryRows)
inline constexpr Engine::FieldName<Float> OpeningBalance{u"OpeningBalance"};
inline constexpr Engine::FieldName<Float> Receipts{u"Receipts"};
inline constexpr Engine::FieldName<Float> Adjustments{u"Adjustments"};
inline constexpr Engine::FieldName<Float> Sales{u"Sales"};
inline constexpr Engine::FieldName<Float> ClosingBalance{u"ClosingBalance"};

// By which the form to count on is grouped: the type's name in small letters
inline constexpr Engine::FieldName<Text> Category{u"Category"};

} // namespace Tallymere::ReportFields
