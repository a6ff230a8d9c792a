#pragma once

#include "insight/plannedreceipt.h"
#include "insight/whattobuy.h"

#include <QHash>

namespace Tallymere {

// What to buy, with what somebody makes of the proposals: the quantity of each item that is to be bought.
class BuyingList
{
public:
    struct Row
    {
        ItemToBuy item;
        std::optional<double> typed; // in place of the proposal

        double quantity() const { return typed.value_or(item.proposed); }
    };

    // Of a plan that what lasts long enough is left out of, rows with a typed quantity stay. What has been typed stays with
    // its items.
    void read(Engine::Database &database, const BuyingPlan &plan);
    // The same of what has been read already, of the plan with all that there is (withAll).
    void take(std::vector<ItemToBuy> items, const BuyingPlan &plan);
    static BuyingPlan withAll(BuyingPlan plan);

    int size() const { return static_cast<int>(m_shown.size()); }
    const Row &row(int row) const { return m_rows[m_shown[static_cast<size_t>(row)]]; }
    int leftOut() const { return static_cast<int>(m_rows.size() - m_shown.size()); }
    bool isShort(int row) const; // lasts less long than it is to
    bool beginsVendor(int row) const; // the rows of a vendor follow each other

    // Nothing: the proposal. Throws RuleError for a quantity below zero, or beyond what can be meant.
    void setQuantity(int row, std::optional<double> quantity);

    int chosen() const; // rows with a quantity
    // What is to be bought of the vendor of a row, at the location of the plan. Throws RuleError when that is nothing.
    PlannedReceipt receiptOf(int row) const;
    // It has been entered: the typed quantities of its items have had their use.
    void forgetTyped(const PlannedReceipt &entered);

private:
    void show();

    BuyingPlan m_plan;
    std::vector<Row> m_rows;
    std::vector<size_t> m_shown; // of them
};

} // namespace Tallymere
