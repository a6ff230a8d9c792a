#include "insight/buyinglist.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "insight/texts.h"
#include "transactions/books/quantitycheck.h"

#include <algorithm>

namespace Tallymere {

namespace {
constexpr int daysOfAWeek = 7;
} // namespace

BuyingPlan BuyingList::withAll(BuyingPlan plan)
{
    plan.alsoInStock = true;
    return plan;
}

void BuyingList::read(Engine::Database &database, const BuyingPlan &plan)
{
    take(whatToBuy(database, withAll(plan)), plan);
}

void BuyingList::take(std::vector<ItemToBuy> items, const BuyingPlan &plan)
{
    QHash<int, double> typed;
    for (const Row &row : m_rows)
        if (row.typed)
            typed.insert(row.item.item, *row.typed);
    m_plan = plan;
    m_rows.clear();
    for (ItemToBuy &item : items) {
        const auto kept = typed.constFind(item.item);
        m_rows.push_back({std::move(item), kept == typed.cend() ? std::nullopt : std::optional(*kept)});
    }
    show();
}

void BuyingList::show()
{
    m_shown.clear();
    for (size_t i = 0; i < m_rows.size(); ++i)
        if (m_plan.alsoInStock || m_rows[i].item.proposed > 0 || m_rows[i].typed)
            m_shown.push_back(i);
}

bool BuyingList::isShort(int row) const { return this->row(row).item.daysLeft < daysOfAWeek * m_plan.cover; }

bool BuyingList::beginsVendor(int row) const
{
    return row == 0 || this->row(row - 1).item.vendor != this->row(row).item.vendor;
}

void BuyingList::setQuantity(int row, std::optional<double> quantity)
{
    if (quantity && *quantity < 0)
        throw RuleError(InsightTexts::tr("A quantity to buy cannot be below zero"), Fields::Quantity);
    if (quantity)
        requireSensibleQuantity(*quantity, Fields::Quantity);
    m_rows[m_shown[static_cast<size_t>(row)]].typed = quantity;
}

int BuyingList::chosen() const
{
    return static_cast<int>(std::ranges::count_if(m_rows, [](const Row &row) { return row.quantity() > 0; }));
}

PlannedReceipt BuyingList::receiptOf(int row) const
{
    const int vendor = this->row(row).item.vendor;
    PlannedReceipt receipt{.vendor = vendor, .location = m_plan.location, .lines = {}};
    for (const Row &one : m_rows)
        if (one.item.vendor == vendor && one.quantity() > 0)
            receipt.lines.push_back({one.item.item, one.quantity()});
    if (receipt.lines.empty())
        throw RuleError(InsightTexts::tr("There is nothing to buy of this vendor: no item has a quantity"));
    return receipt;
}

void BuyingList::forgetTyped(const PlannedReceipt &entered)
{
    for (Row &row : m_rows)
        if (std::ranges::any_of(entered.lines,
                                [&](const PlannedReceipt::Line &line) { return line.item == row.item.item; }))
            row.typed.reset();
}

} // namespace Tallymere
