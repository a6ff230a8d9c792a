#include "reports/balancequery.h"

using namespace Qt::StringLiterals;

namespace Tallymere::BalanceQueries {

namespace {

const QString items = u"IBalance B LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID "_s;
const QStringList chosen{u"B.WarehouseID = :Location"_s, u"I.ItemTypeID = :ItemType"_s};

} // namespace

ReportQuery byItem(const QString &columns, const QString &joins, const QStringList &firstOrder)
{
    return {.select = u"B.ItemID, Sum(B.QtyOnHand) ItemQtyOnHand, "_s + columns,
            .from = items + joins,
            .conditions = chosen,
            .groupBy = u"B.ItemID, "_s + columns,
            .order = firstOrder + QStringList{u"I.ItemNo"_s}};
}

ReportQuery byLocation(const QString &columns, const QString &joins, const QStringList &firstOrder)
{
    return {.select = u"B.ItemID, B.WarehouseID, B.QtyOnHand, W.WarehouseName, "_s + columns,
            .from = items + joins + "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID"_L1,
            .conditions = chosen,
            .order = firstOrder + QStringList{u"ItemNo"_s, u"ItemID"_s, u"WarehouseName"_s},
            .keys = u"ItemID;WarehouseID"_s};
}

QString withTypes() { return u"LEFT OUTER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID "_s; }

} // namespace Tallymere::BalanceQueries
