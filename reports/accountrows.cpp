#include "reports/accountrows.h"

#include "data/fields.h"
#include "reports/reportfields.h"

#include <algorithm>

namespace Tallymere {

AccountRows::AccountRows(Engine::Database &database, const ReportQuery &balances, const ReportSelection &selection,
                         const Printing::ReportLayout &layout)
    : m_balances(openReportQuery(database, balances, selection))
    , m_query(*m_balances)
    , m_map(layout, m_query)
    , m_item(m_query.fieldIndex(Fields::ItemID))
    , m_location(m_query.fieldIndex(Fields::WarehouseID))
    , m_onHand(m_query.fieldIndex(m_location >= 0 ? Fields::QtyOnHand : ReportFields::ItemQtyOnHand))
    , m_movements(database, selection.year, selection.period, selection.warehouseId, m_location >= 0)
{
}

bool AccountRows::nextAccount()
{
    if (m_index + 1 >= m_query.recordCount())
        return false;
    ++m_index;
    if (m_index >= m_readTo)
        readMovements();
    m_account = {itemAt(m_index), m_location >= 0 ? m_query.valueAt(m_index, m_location).toInt() : 0};
    return true;
}

int AccountRows::itemAt(int index) const { return m_query.valueAt(index, m_item).toInt(); }

// Whole items, so that none is read twice; few at first, as somebody waits for the first page.
void AccountRows::readMovements()
{
    constexpr int movementsAtOnce = 250'000; // about
    constexpr size_t mostItems = 1024;
    std::vector<qint64> items;
    const int count = m_query.recordCount();
    for (m_readTo = m_index; m_readTo < count; ++m_readTo) {
        const int item = itemAt(m_readTo);
        if (!items.empty() && items.back() == item)
            continue;
        if (items.size() == m_itemsAtOnce)
            break;
        items.push_back(item);
    }
    const int movements = m_movements.read(items);
    if (movements < movementsAtOnce / 2)
        m_itemsAtOnce = std::min(2 * m_itemsAtOnce, mostItems);
    else if (movements > movementsAtOnce)
        m_itemsAtOnce = std::max<size_t>(m_itemsAtOnce / 2, 1);
}

void AccountRows::takeBalance(std::vector<Engine::Value> &values) const
{
    m_map.take(m_query, m_query.rowAt(m_index), values);
}

} // namespace Tallymere
