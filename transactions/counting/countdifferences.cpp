#include "transactions/counting/countdifferences.h"

#include <algorithm>
#include <cmath>

using Engine::Money;

namespace Tallymere {

namespace {

Money size(Money value) { return value < Money() ? -value : value; }

bool isGreater(const CountDifference &one, const CountDifference &other)
{
    if (size(one.value) != size(other.value))
        return size(one.value) > size(other.value);
    return std::abs(one.quantity) > std::abs(other.quantity);
}

} // namespace

CountDifferences::CountDifferences(const CountList &list)
    : m_together(list.totals().value)
{
    for (int i = 0; i < list.size(); ++i) {
        const CountRow &row = list.row(i);
        if (!row.differs())
            continue;
        m_items.push_back({row.itemId, row.itemNo, row.description, row.difference(), row.unitCost, row.value()});
        Side &side = row.difference() < 0 ? m_missing : m_over;
        ++side.items;
        side.value = side.value + row.value();
        m_withoutCost += row.unitCost == Money() ? 1 : 0;
    }
    std::stable_sort(m_items.begin(), m_items.end(), isGreater);
}

Money CountDifferences::largest() const { return m_items.empty() ? Money() : size(m_items.front().value); }

} // namespace Tallymere
