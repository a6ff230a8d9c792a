#include "master/hoststatements.h"

#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/dialect.h"

using namespace Qt::StringLiterals;

namespace Tallymere::HostStatements {

namespace {

struct MealType
{
    QLatin1StringView code;
    int type;
};

constexpr MealType mealTypes[] = {
    {"B"_L1, 1}, {"L"_L1, 2}, {"D"_L1, 3}, {"MF"_L1, 4}, {"SF"_L1, 5}, {"O"_L1, 6},
};
constexpr int newItemOfUnknownCode = 3;
constexpr int updatedItemOfUnknownCode = 6;

// "'B', 'L', ..."
QString knownCodes()
{
    QStringList codes;
    for (const MealType &meal : mealTypes)
        codes << u'\'' + QString(meal.code) + u'\'';
    return codes.join(u", "_s);
}

QString typeOfUpdatedItem()
{
    QString text = u"CASE Items.Meal"_s;
    for (const MealType &meal : mealTypes)
        text += u" WHEN '%1' THEN %2"_s.arg(meal.code).arg(meal.type);
    return text + u" ELSE %1 END"_s.arg(updatedItemOfUnknownCode);
}

// A column of the host, no longer than the inventory's field.
QString cut(const QString &column, const Engine::TableLayout &layout, QStringView field)
{
    return u"substr(%1, 1, %2)"_s.arg(column).arg(layout.field(field)->size);
}

} // namespace

QString queryUpdateWarehseFromLocatns()
{
    return u"Update Warehse set WarehouseName = %1 from Locatns where Warehse.Location_ID = Locatns.Location_ID "
           "and Warehse.WarehouseName is distinct from %1"_s.arg(
               cut(u"Locatns.Location"_s, Layouts::warehse(), Fields::WarehouseName));
}

QString queryGetLastWarehouseID() { return u"SELECT max(WarehouseID) as LastID FROM Warehse"_s; }

QString querySelectLocatnsNotInWarehse()
{
    return u"Select Location_ID, Location from Locatns where (Location_ID not in "
           "(Select Location_ID from Warehse where Location_ID is not null)) and Location_ID is not null "
           "order by Location_ID"_s;
}

QString queryInsertLocationIntoWarehouse()
{
    return u"Insert into Warehse (WarehouseID, WarehouseName, Location_ID) "
           "values (:WarehouseID, :Location, :Location_ID)"_s;
}

QString queryItemOfUnusablePrice()
{
    return u"select Item_ID from Items where abs(Billed_Amount) > %1 and Item_ID is not null order by Item_ID "
           "limit 1"_s.arg(Engine::Money::largestAmount);
}

QString queryUpdateItemFromItems(const Engine::Dialect &dialect)
{
    return u"Update Item set ItemDescription = %1, UnitPrice = Items.Billed_Amount, ItemTypeID = %2 "
           "from Items where Items.Item_ID = %3 and (Item.ItemDescription is distinct from %1 "
           "or coalesce(Items.Billed_Amount, 0.00) <> coalesce(Item.UnitPrice, 0.00) "
           "or (Item.ItemTypeID = %4 and coalesce(Items.Meal, '') not in (%5)))"_s
               .arg(cut(u"Items.Meal_Item"_s, Layouts::item(), Fields::ItemDescription), typeOfUpdatedItem(),
                    dialect.wholeNumberOf(u"Item.ItemNo"_s))
               .arg(newItemOfUnknownCode)
               .arg(knownCodes());
}

// A join on what a text reads as would compare every item with every host item in one of the stores.
QString queryGetItemsNotItem(const Engine::Dialect &dialect)
{
    return u"select Items.Item_ID, Items.Meal_Item, Items.Billed_Amount, Items.Meal from Items where Items.Item_ID "
           u"in "
           "(select Items.Item_ID from Items except select %1 from Item) order by Items.Item_ID"_s.arg(
               dialect.wholeNumberOf(u"Item.ItemNo"_s));
}

QString queryInsertItem()
{
    return u"Insert Into Item (ItemID, ItemNo, ItemDescription, UnitPrice, ItemTypeID, Suspended) "
           "Values (:ItemID, :ItemNo, :ItemDescription, :UnitPrice, :ItemTypeID, False);"_s;
}

int typeOfNewItem(const QString &mealCode)
{
    for (const MealType &meal : mealTypes) {
        if (mealCode == meal.code)
            return meal.type;
    }
    return newItemOfUnknownCode;
}

} // namespace Tallymere::HostStatements
