#include "transactions/unitcosts.h"

#include "engine/query.h"

using namespace Qt::StringLiterals;
using Engine::Money;
using Engine::Value;

namespace Tallymere {

Money UnitCosts::readNow(const Value &item)
{
    if (item.isNull())
        return {};
    const Value cost = Engine::singleValue(
        m_database,
        u"SELECT CASE T.CostingMethod WHEN 1 THEN I.WgtAvgCost WHEN 2 THEN I.StandardCost ELSE 0.0 END "
        "FROM Item I INNER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID WHERE I.ItemID = ? AND T.Inventory = true"_s,
        {item});
    return m_costs[item.toInt()] = cost.as(Engine::FieldType::Money).toMoney();
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
