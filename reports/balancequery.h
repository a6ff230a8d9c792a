#pragma once

#include "engine/query.h"
#include "reports/reportdescription.h"

namespace Tallymere {

// The balances that a report is about, in its order: its query with the condition that the selection makes of it.
class BalanceQuery
{
public:
    BalanceQuery(Engine::Database &database, const ReportDescription &report, const ReportSelection &selection);

    Engine::Query &query() { return m_query; } // open

private:
    Engine::Query m_query;
};

// The third line of the query: "WHERE (WarehouseID = 2) AND (ItemTypeID = 7)"; empty when nothing is chosen.
QString conditionLine(const ReportSelection &selection);

// The lines of such a query, but for its order. Columns are those of the item, I, and of what is joined.
namespace BalanceLines {

// A line for each item, "ItemQtyOnHand" being the sum over all locations that are asked for.
QStringList byItem(const QString &columns, const QString &joins = {});
// A line for each item and location, with its "QtyOnHand" and "WarehouseName".
QStringList byLocation(const QString &columns, const QString &joins = {});
// Joins the item's type, T.
QString withTypes();

} // namespace BalanceLines

} // namespace Tallymere
