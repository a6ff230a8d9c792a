#include "transactions/counting/countlist.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "transactions/books/quantitycheck.h"
#include "transactions/texts.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Bytes that compare as the stores order texts: by code point, letter case second to nothing but folded for ASCII.
QByteArray sortText(const QString &text, Qt::CaseSensitivity sensitivity)
{
    QByteArray bytes = text.toUtf8();
    if (sensitivity == Qt::CaseSensitive)
        return bytes;
    for (char &c : bytes) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return bytes;
}

// As it is shown.
QString orderedText(const CountRow &row, CountList::Order order)
{
    switch (order) {
    case CountList::Order::Category:
        return row.typeName;
    case CountList::Order::Item:
        return row.description;
    case CountList::Order::Cost:
        return currencyText(row.standardCost);
    case CountList::Order::ItemNo:
        break;
    }
    return row.itemNo;
}

struct SortKey
{
    QByteArray text;
    double number = 0;
    int place = 0;
    size_t from = 0;

    bool operator<(const SortKey &other) const
    {
        return std::tie(number, text, place) < std::tie(other.number, other.text, other.place);
    }
};

SortKey sortKey(const CountRow &row, CountList::Order order)
{
    if (order == CountList::Order::Cost)
        return {{}, row.standardCost.toDouble()};
    return {sortText(orderedText(row, order),
                     order == CountList::Order::ItemNo ? Qt::CaseSensitive : Qt::CaseInsensitive)};
}

// No amount is larger than money can be.
Engine::Money centsOf(long double amount)
{
    constexpr long double largest = Engine::Money::largestAmount;
    return toCents(std::clamp(amount, -largest, largest));
}

} // namespace

double CountRow::difference() const { return withoutNoise(counted() - prior()); }

Engine::Money CountRow::value() const
{
    return centsOf(static_cast<long double>(difference()) * unitCost.toLongDouble());
}

CountList::CountList(std::vector<CountRow> rows)
{
    m_rows.reserve(rows.size());
    for (CountRow &row : rows)
        m_rows.push_back({std::move(row), size()});
    sortBy(m_order);
}

int CountList::rowOfItem(qint64 itemId) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const Placed &one) { return one.row.itemId == itemId; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int CountList::rowOfNumber(const QString &itemNo) const
{
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Placed &one) {
            return one.row.itemNo.compare(itemNo, sensitivity) == 0;
        });
        if (found != m_rows.end())
            return static_cast<int>(found - m_rows.begin());
    }
    return -1;
}

int CountList::rowStartingWith(const QString &text) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Placed &one) {
        return orderedText(one.row, m_order).startsWith(text, Qt::CaseInsensitive);
    });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void CountList::sortBy(Order order)
{
    m_order = order;
    std::vector<SortKey> keys;
    keys.reserve(m_rows.size());
    for (size_t i = 0; i < m_rows.size(); ++i) {
        SortKey key = sortKey(m_rows[i].row, order);
        key.place = m_rows[i].place;
        key.from = i;
        keys.push_back(std::move(key));
    }
    std::sort(keys.begin(), keys.end());
    std::vector<Placed> sorted;
    sorted.reserve(m_rows.size());
    for (const SortKey &key : keys)
        sorted.push_back(std::move(m_rows[key.from]));
    m_rows = std::move(sorted);
}

void CountList::count(int row, double quantity, CountMark mark)
{
    if (quantity < 0)
        throw RuleError(TransactionsTexts::tr("A quantity that has been counted cannot be below zero"),
                        Fields::Quantity);
    requireSensibleQuantity(quantity, Fields::Quantity);
    at(row).typed = quantity + 0.0; // no minus sign at zero
    at(row).mark = std::move(mark);
}

void CountList::forgetCount(int row)
{
    at(row).typed.reset();
    at(row).mark = {};
}

void CountList::setStandardCost(int row, Engine::Money cost)
{
    at(row).standardCost = cost;
    at(row).costTyped = true;
}

double CountList::highest(int row) const
{
    const double prior = this->row(row).prior();
    return prior > 0 ? std::max(prior, withoutNoise(prior)) : 1;
}

void CountList::requireWithinRecord(int row, double quantity, bool blind) const
{
    const double most = highest(row);
    if (this->row(row).typed == quantity || (quantity >= 0 && quantity <= most))
        return;
    const QString column = TransactionsTexts::tr("Current Quantity");
    if (quantity < 0)
        throw RuleError(TransactionsTexts::tr("'%1' must not be less than %2").arg(column, u"0"_s),
                        Fields::Quantity);
    if (blind)
        throw RuleError(
            TransactionsTexts::tr(
                "This is more than is recorded. Count the item once more. If it is right, write down what "
                "is there, to enter it as an adjustment when the usage of the count has been posted."),
            Fields::Quantity);
    throw RuleError(TransactionsTexts::tr("'%1' must not be greater than %2")
                        .arg(column, quantityFormat().edit(Engine::Value(most))),
                    Fields::Quantity);
}

// Fractions are lost on both sides: books of items that are deducted here are kept in whole numbers.
void CountList::deduct(const ItemQuantities &unposted)
{
    for (Placed &placed : m_rows) {
        const auto found = unposted.constFind(placed.row.itemId);
        if (found == unposted.constEnd())
            continue;
        const auto left = static_cast<qint64>(placed.row.prior()) - static_cast<qint64>(*found);
        placed.row.recorded = static_cast<double>(left);
        placed.row.typed.reset();
        placed.row.mark = {};
    }
}

bool CountList::hasEdits() const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [](const Placed &one) { return one.row.typed || one.row.costTyped; });
}

bool CountList::hasUsage() const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [](const Placed &one) { return one.row.difference() < 0; });
}

int CountList::countedAbove() const
{
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const Placed &one) { return one.row.difference() > 0; }));
}

ItemQuantities CountList::counts() const
{
    ItemQuantities counts;
    for (const Placed &placed : m_rows) {
        if (placed.row.typed)
            counts.insert(placed.row.itemId, *placed.row.typed);
    }
    return counts;
}

CountMarks CountList::marks() const
{
    CountMarks marks;
    for (const Placed &placed : m_rows) {
        if (placed.row.typed)
            marks.insert(placed.row.itemId, placed.row.mark);
    }
    return marks;
}

void CountList::takeCounts(const ItemQuantities &counts, const CountMarks &marks)
{
    for (Placed &placed : m_rows) {
        const auto found = counts.constFind(placed.row.itemId);
        if (found == counts.constEnd())
            continue;
        placed.row.typed = *found;
        placed.row.mark = marks.value(placed.row.itemId);
    }
}

ItemCosts CountList::costs() const
{
    ItemCosts costs;
    for (const Placed &placed : m_rows) {
        if (placed.row.costTyped)
            costs.insert(placed.row.itemId, placed.row.standardCost);
    }
    return costs;
}

void CountList::takeCosts(const ItemCosts &costs)
{
    for (int row = 0; row < size(); ++row) {
        if (const auto cost = costs.constFind(at(row).itemId); cost != costs.constEnd())
            setStandardCost(row, *cost);
    }
}

ItemNumbers CountList::itemNos() const
{
    ItemNumbers numbers;
    numbers.reserve(size());
    for (const Placed &placed : m_rows)
        numbers.insert(placed.row.itemId, placed.row.itemNo);
    return numbers;
}

int CountList::behindLastCounted() const
{
    const auto last =
        std::find_if(m_rows.rbegin(), m_rows.rend(), [](const Placed &one) { return one.row.typed.has_value(); });
    return last == m_rows.rend() ? -1 : std::min(static_cast<int>(m_rows.rend() - last), size() - 1);
}

int CountList::notCounted() const { return size() - totals().counted; }

CountList::Totals CountList::totals() const
{
    Totals totals;
    long double value = 0;
    for (const Placed &placed : m_rows) {
        const CountRow &row = placed.row;
        totals.counted += row.typed ? 1 : 0;
        totals.differing += row.differs() ? 1 : 0;
        value += row.value().toLongDouble();
    }
    totals.value = centsOf(value);
    return totals;
}

} // namespace Tallymere
