#pragma once

#include "transactions/counting/countlist.h"

namespace Tallymere {

// An item that has been counted and is not as recorded.
struct CountDifference
{
    qint64 itemId = 0;
    QString itemNo;
    QString description;
    double quantity = 0; // below 0 where something is missing
    Engine::Money unitCost; // as the usage of the count has it
    Engine::Money value; // to the cent
};

// What a count differs by, item by item, and where the money of it is.
class CountDifferences
{
public:
    explicit CountDifferences(const CountList &list);

    // Those of the greatest value first, whichever way they differ; of equal ones those of the greatest quantity, and then
    // in the order of the list.
    const std::vector<CountDifference> &items() const { return m_items; }
    Engine::Money largest() const; // value, without its sign

    struct Side
    {
        int items = 0;
        Engine::Money value;
    };
    const Side &missing() const { return m_missing; }
    const Side &over() const { return m_over; }
    Engine::Money together() const { return m_together; }
    int withoutCost() const { return m_withoutCost; } // items whose difference is worth nothing

private:
    std::vector<CountDifference> m_items;
    Side m_missing;
    Side m_over;
    Engine::Money m_together;
    int m_withoutCost = 0;
};

} // namespace Tallymere
