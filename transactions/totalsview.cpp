#include "transactions/totalsview.h"

#include "base/listfilter.h"
#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TotalsView::TotalsView(Engine::Database &database)
    : m_query(database,
              u"SELECT B.ItemID, B.WarehouseID, B.QtyOnHand, I.ItemNo, I.ItemDescription, W.WarehouseName\n"
              "FROM IBalance B\n"
              "LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID\n"
              "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID"_s)
{
    m_query.setKeyFields(u"ItemID;WarehouseID"_s);
    m_query.setFoldedFields(u"ItemDescription;WarehouseName"_s);
    setSort(Sort::ItemNo);
}

void TotalsView::setSort(Sort sort)
{
    m_sort = sort;
    m_query.setOrderBy(sort == Sort::ItemNo ? u"ItemNo;WarehouseName"_s : u"ItemDescription;WarehouseName"_s);
}

QString TotalsView::filterExpression(int itemId, int warehouseId)
{
    return keyConditions({{Fields::ItemID, itemId}, {Fields::WarehouseID, warehouseId}});
}

QString TotalsView::belowZero() { return u"(QtyOnHand < 0)"_s; }

} // namespace Tallymere
