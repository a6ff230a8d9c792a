#include "transactions/kinds/unitcosts.h"

#include "master/costing.h"

using namespace Qt::StringLiterals;
using Engine::Money;
using Engine::Value;

namespace Tallymere {

Money UnitCosts::readNow(const Value &item)
{
    if (item.isNull())
        return {};
    const Engine::StatementPtr row = m_database.connection().prepare(
        u"SELECT T.CostingMethod, I.WgtAvgCost, I.StandardCost "
        "FROM Item I INNER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID WHERE I.ItemID = ? AND T.Inventory = true"_s);
    row->bind(0, item);
    const Money cost = row->next() ? ItemCost::fromRow(*row, 0).cost : Money(); // nothing is kept of what fails
    return m_costs[item.toInt()] = cost;
}

Money UnitCosts::of(const Value &item)
{
    const auto known = m_costs.find(item.toInt());
    return known == m_costs.end() ? readNow(item) : known->second;
}

Money UnitCosts::chosen(const Value &item) { return m_held.contains(item.toInt()) ? of(item) : readNow(item); }

void UnitCosts::hold(const Value &item) { m_held.insert(item.toInt()); }

void UnitCosts::forget()
{
    m_costs.clear();
    m_held.clear();
}

} // namespace Tallymere
