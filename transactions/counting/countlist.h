#pragma once

#include "engine/values/fieldname.h"
#include "engine/values/money.h"

#include <optional>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <vector>

namespace Tallymere {

// Who has counted an item, and when. Without a name it is whoever counts at this machine.
struct CountMark
{
    QString by;
    QDateTime at;

    bool operator==(const CountMark &) const = default;
};

// An item in the list of a count.
struct CountRow
{
    qint64 itemId = 0;
    QString itemNo;
    QString typeName;
    QString description;
    Engine::Money standardCost;
    bool costTyped = false; // the standard cost is the user's, not the books'
    Engine::Money unitCost; // by the costing method of the item's type
    std::optional<double> recorded; // what the books hold; nothing where there is no balance
    std::optional<double> typed; // what has been counted; nothing while nobody has, which is not 0
    CountMark mark = {}; // of what has been counted

    double prior() const { return recorded.value_or(0); }
    double counted() const { return typed.value_or(prior()); }
    double difference() const; // below 0 where something has been used; without the noise of floating numbers
    bool differs() const { return difference() != 0; }
    Engine::Money value() const; // of the difference, to the cent
};

// Counted quantities by item.
using ItemQuantities = QHash<qint64, double>;
using ItemCosts = QHash<qint64, Engine::Money>;
using ItemNumbers = QHash<qint64, QString>;
using CountMarks = QHash<qint64, CountMark>;

// The items to be counted at one location, with what has been counted so far. Counts stay with their items in every
// order.
class CountList
{
public:
    enum class Order { ItemNo, Category, Item, Cost };
    // What is recorded, as a column; the balance itself is spelt QtyOnHand.
    static constexpr Engine::FieldName<Engine::FieldType::Float> QtyOnhand{u"QtyOnhand"};

    CountList() = default;
    // Rows that are equal in an order keep the one they are given in.
    explicit CountList(std::vector<CountRow> rows);

    int size() const { return static_cast<int>(m_rows.size()); }
    const CountRow &row(int row) const { return m_rows[static_cast<size_t>(row)].row; }
    int rowOfItem(qint64 itemId) const; // -1 when it is not in the list
    // In another letter case where there is none as typed; -1 for none.
    int rowOfNumber(const QString &itemNo) const;

    // The first row whose text in the column of the order begins so, in any letter case; -1 when there is none.
    int rowStartingWith(const QString &text) const;

    Order order() const { return m_order; }
    void sortBy(Order order);

    // Takes a count; throws RuleError for one below zero, or beyond what can be meant.
    void count(int row, double quantity, CountMark mark = {});
    void forgetCount(int row); // nobody has counted it
    void setStandardCost(int row, Engine::Money cost);
    // The most that is expected: what is recorded, as it is shown at least, or 1 where that is nothing.
    double highest(int row) const;
    // Throws RuleError for a count above that or below zero, unless it is what has been counted already. Blind, without
    // telling how much that is.
    void requireWithinRecord(int row, double quantity, bool blind) const;

    // Takes quantities that wait to be posted off what is recorded, in whole numbers, and drops the counts of those
    // items.
    void deduct(const ItemQuantities &unposted);

    bool hasEdits() const; // a count or a standard cost has been typed
    bool hasUsage() const; // some row holds less than recorded
    int countedAbove() const; // rows that hold more
    ItemQuantities counts() const; // of the items that have been counted
    CountMarks marks() const; // of these
    void takeCounts(const ItemQuantities &counts, const CountMarks &marks = {});
    ItemCosts costs() const; // standard costs that have been typed
    void takeCosts(const ItemCosts &costs);
    ItemNumbers itemNos() const; // of all items
    int behindLastCounted() const; // the row to go on with, the last one at most; -1 when nothing has been counted
    int notCounted() const; // rows

    struct Totals
    {
        int counted = 0;
        int differing = 0;
        Engine::Money value; // of the differences, each to the cent; below 0 where something has been used
    };
    Totals totals() const;

private:
    struct Placed
    {
        CountRow row;
        int place = 0; // in the order given at first
    };

    CountRow &at(int row) { return m_rows[static_cast<size_t>(row)].row; }

    std::vector<Placed> m_rows;
    Order m_order = Order::ItemNo;
};

} // namespace Tallymere
