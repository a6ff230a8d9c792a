#pragma once

#include "engine/records/query.h"

#include <QString>

namespace Tallymere {

// The quantity on hand of every item at every location. A balance whose item or location has been removed shows
// with empty names.
class TotalsView
{
public:
    enum class Sort { ItemNo, Description };

    explicit TotalsView(Engine::Database &database);

    // ItemID, WarehouseID, QtyOnHand, ItemNo, ItemDescription, WarehouseName.
    Engine::Query &query() { return m_query; }
    void open() { m_query.open(); }

    Sort sort() const { return m_sort; }
    void setSort(Sort sort);

    // The filter expression for an item and a location, each 0 when not chosen; empty when neither is.
    static QString filterExpression(int itemId, int warehouseId);
    static QString belowZero(); // the filter expression, and a condition

private:
    Engine::Query m_query;
    Sort m_sort = Sort::ItemNo;
};

} // namespace Tallymere
