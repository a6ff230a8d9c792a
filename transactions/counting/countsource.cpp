#include "transactions/counting/countsource.h"

#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "transactions/documents/documentkinds.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

constexpr auto pledged = "%, Pledge"_L1;

QString listStatement(const Engine::Dialect &dialect, ZeroCounts zeroCounts)
{
    const QString location = zeroCounts == ZeroCounts::Included
        ? u"((IBalance.WarehouseID = ?) OR (IBalance.WarehouseID IS NULL))"_s
        : u"(IBalance.WarehouseID = ?)"_s;
    return u"SELECT Item.ItemID, Item.ItemNo, ItemType.TypeName, Item.ItemDescription, IBalance.QtyOnHand, "
           "ItemType.CostingMethod, Item.WgtAvgCost, Item.StandardCost "
           "FROM Item JOIN ItemType ON Item.ItemTypeID = ItemType.ItemTypeID "
           "LEFT OUTER JOIN IBalance ON Item.ItemID = IBalance.ItemID "
           "WHERE Item.Suspended = false AND ItemType.Inventory = true AND NOT (%1) AND %2 ORDER BY %3, %4"_s.arg(
               dialect.like(u"Item.ItemDescription"_s), location,
               dialect.orderTerm(u"ItemType.TypeName"_s, false, false),
               dialect.orderTerm(u"Item.ItemDescription"_s, true, false));
}

CountRow readRow(const Engine::Statement &row)
{
    CountRow read;
    read.itemId = row.intAt(0);
    read.itemNo = row.textAt(1);
    read.typeName = row.textAt(2);
    read.description = row.textAt(3);
    read.unitCost = ItemCost::fromRow(row, 5).cost;
    read.standardCost = Money::fromDouble(row.doubleAt(7));
    if (!row.isNull(4))
        read.recorded = row.doubleAt(4) + 0.0; // no minus sign at zero
    return read;
}

ItemQuantities quantities(Engine::Database &database, const QString &statement, int location)
{
    const Engine::StatementPtr rows = database.connection().prepare(statement);
    rows->bindInt(0, location);
    ItemQuantities quantities;
    while (rows->next())
        quantities.insert(rows->intAt(0), rows->doubleAt(1));
    return quantities;
}

} // namespace

QString CountLocation::text() const { return u"%1          [%2]"_s.arg(name, QString::number(id)); }

std::vector<CountLocation> CountSource::locations() const
{
    Engine::Connection &connection = m_database.connection();
    const Engine::StatementPtr rows =
        connection.prepare(u"SELECT WarehouseName, WarehouseID FROM Warehse ORDER BY %1, WarehouseID"_s.arg(
            connection.dialect().orderTerm(Fields::WarehouseName, true, false)));
    std::vector<CountLocation> locations;
    while (rows->next())
        locations.push_back({static_cast<int>(rows->intAt(1)), rows->textAt(0)});
    return locations;
}

CountList CountSource::list(int location, ZeroCounts zeroCounts) const
{
    Engine::Connection &connection = m_database.connection();
    const Engine::Dialect &dialect = connection.dialect();
    const Engine::StatementPtr items = connection.prepare(listStatement(dialect, zeroCounts));
    items->bindText(0, dialect.likePattern(pledged));
    items->bindInt(1, location);
    std::vector<CountRow> rows;
    while (items->next())
        rows.push_back(readRow(*items));
    return CountList(std::move(rows));
}

bool CountSource::hasUnposted(int location) const
{
    return std::ranges::any_of(DocumentKinds::all(), [&](const DocumentKind *kind) {
        const Engine::StatementPtr rows = m_database.connection().prepare(
            u"SELECT %1 FROM %2 WHERE Posted = false AND WarehouseID = ?"_s.arg(kind->keyField, kind->headerTable));
        rows->bindInt(0, location);
        return rows->next();
    });
}

ItemQuantities CountSource::unpostedUsage(int location) const
{
    return quantities(m_database,
                      u"SELECT ItemID, sum(Quantity) FROM IUsage JOIN IUsageDet ON IUsage.UsageID = "
                      "IUsageDet.UsageID WHERE IUsage.Posted = false AND WarehouseID = ? GROUP BY ItemID"_s,
                      location);
}

ItemQuantities CountSource::balances(int location) const
{
    return quantities(m_database, u"SELECT ItemID, QtyOnHand FROM IBalance WHERE WarehouseID = ?"_s, location);
}

QHash<qint64, ItemCost> CountSource::costs() const
{
    const Engine::StatementPtr rows =
        m_database.connection().prepare(u"SELECT Item.ItemID, CostingMethod, WgtAvgCost, StandardCost "
                                        "FROM ItemType JOIN Item ON ItemType.ItemTypeID = Item.ItemTypeID"_s);
    QHash<qint64, ItemCost> costs;
    while (rows->next())
        costs.insert(rows->intAt(0), ItemCost::fromRow(*rows, 1));
    return costs;
}

NotCounted CountSource::reasonNotCounted(const QString &itemNo) const
{
    const Engine::StatementPtr item = m_database.connection().prepare(
        u"SELECT Suspended, Inventory FROM Item LEFT OUTER JOIN ItemType ON Item.ItemTypeID = ItemType.ItemTypeID "
        "WHERE lower(ItemNo) = lower(?) ORDER BY CASE WHEN ItemNo = ? THEN 0 ELSE 1 END"_s);
    item->bindText(0, itemNo);
    item->bindText(1, itemNo);
    if (!item->next())
        return NotCounted::Unknown;
    if (item->valueAt(0, Engine::FieldType::Boolean).toBool())
        return NotCounted::Suspended;
    return item->valueAt(1, Engine::FieldType::Boolean).toBool() ? NotCounted::NotHere : NotCounted::NoInventory;
}

} // namespace Tallymere
