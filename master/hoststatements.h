#pragma once

#include <QString>

namespace Engine {
class Dialect;
}

// The statements of the synchronization with the host, one function for each. Both stores take the same text, but for
// what their dialect says.
//
// The host's names may be longer than the inventory's fields: they are cut here and compared as cut. Nulls compare as
// values do, so that a name which the host has dropped is dropped as well.

namespace Tallymere::HostStatements {

// Locations linked to a place of the host whose name has changed take the place's name.
QString queryUpdateWarehseFromLocatns();
QString queryGetLastWarehouseID(); // LastID
// Places without a location: Location_ID, Location. Locations that are not linked to a place keep none out.
QString querySelectLocatnsNotInWarehse();
QString queryInsertLocationIntoWarehouse(); // :WarehouseID, :Location, :Location_ID

// A host item whose price is beyond what money can be: Item_ID.
QString queryItemOfUnusablePrice();
// Items whose number reads as the ID of a host item take its description, price and type, where description or price
// differ. (An empty price counts as 0 in that.) So do items of an unknown meal code that still have the type with
// which they came in.
QString queryUpdateItemFromItems(const Engine::Dialect &dialect);
// Host items whose ID is no item's number: Item_ID, Meal_Item, Billed_Amount, Meal.
QString queryGetItemsNotItem(const Engine::Dialect &dialect);
QString queryInsertItem(); // :ItemID, :ItemNo, :ItemDescription, :UnitPrice, :ItemTypeID

// The item type of a new item by the host's meal code. An update gives another one to unknown codes.
int typeOfNewItem(const QString &mealCode);

} // namespace Tallymere::HostStatements
