#include "transactions/books/stockbook.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/store/dialect.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/sqlcondition.h"
#include "transactions/texts.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

StockBook::StockBook(Engine::Connection &connection)
{
    const Engine::Dialect &dialect = connection.dialect();
    m_readCosts =
        connection.prepare(u"SELECT ItemID, WgtAvgCost FROM Item WHERE "_s + dialect.inNumberList(Fields::ItemID));
    m_readBalances =
        connection.prepare(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance WHERE "_s
                           + dialect.inNumberList(Fields::ItemID) + u" ORDER BY ItemID, WarehouseID"_s);
    m_updateCost = connection.prepare(u"UPDATE Item SET WgtAvgCost = ? WHERE ItemID = ?"_s);
    m_updateBalance =
        connection.prepare(u"UPDATE IBalance SET QtyOnHand = ? WHERE ItemID = ? AND WarehouseID = ?"_s);
    m_insertBalance =
        connection.prepare(u"INSERT INTO IBalance (QtyOnHand, ItemID, WarehouseID) VALUES (?, ?, ?)"_s);
}

void StockBook::require(const std::vector<qint64> &items)
{
    std::vector<qint64> unknown;
    for (const qint64 item : items)
        if (m_items.try_emplace(item).second)
            unknown.push_back(item);
    if (unknown.empty())
        return;
    const QString list = Engine::numberList(unknown);
    m_readBalances->bindText(0, list);
    m_readBalances->ask(); // with the costs
    readCosts(list);
    readBalances();
}

void StockBook::forget() { m_items.clear(); }

void StockBook::readCosts(const QString &items)
{
    m_readCosts->bindText(0, items);
    while (m_readCosts->next())
        m_items[m_readCosts->intAt(0)].average = m_readCosts->doubleAt(1);
    m_readCosts->reset();
}

void StockBook::readBalances()
{
    while (m_readBalances->next())
        m_items[m_readBalances->intAt(0)].balances.push_back(
            {m_readBalances->intAt(1), m_readBalances->doubleAt(2)});
    m_readBalances->reset();
}

double StockBook::onHand(qint64 item) const
{
    // Summed up anew each time: a running total would gather rounding errors of its own.
    double sum = 0;
    for (const Balance &balance : m_items.at(item).balances)
        sum += balance.onHand;
    return sum;
}

std::optional<Money> StockBook::averageCost(qint64 item) const
{
    const std::optional<double> average = m_items.at(item).average;
    return average ? std::optional(Money::fromDouble(*average)) : std::nullopt;
}

void StockBook::setAverageCost(qint64 item, Money cost) { m_items.at(item).average = cost.toDouble(); }

BalanceChange StockBook::addToBalance(const Engine::Value &item, const Engine::Value &warehouse, double quantity)
{
    if (item.isNull() || warehouse.isNull())
        return {quantity, true};
    std::vector<Balance> &balances = m_items.at(item.toInt64()).balances;
    const qint64 location = warehouse.toInt64();
    const auto place = std::find_if(balances.begin(), balances.end(),
                                    [location](const Balance &other) { return other.warehouse >= location; });
    const bool isNew = place == balances.end() || place->warehouse != location;
    const double onHand = isNew ? quantity : place->onHand + quantity;
    if (!std::isfinite(onHand))
        throw RuleError(TransactionsTexts::tr("the quantity on hand would be too large"));
    if (isNew)
        balances.insert(place, {location, onHand});
    else
        place->onHand = onHand;
    return {onHand, isNew};
}

void StockBook::writeAverageCost(qint64 item, Money cost, Engine::Writes &writes)
{
    m_updateCost->bindDouble(0, cost.toDouble());
    m_updateCost->bindInt(1, item);
    writes.send(*m_updateCost);
}

void StockBook::writeBalance(const Engine::Value &item, const Engine::Value &warehouse, const BalanceChange &change,
                             Engine::Writes &writes)
{
    Engine::Statement &statement = change.isNew ? *m_insertBalance : *m_updateBalance;
    statement.bindDouble(0, change.onHand);
    statement.bind(1, item);
    statement.bind(2, warehouse);
    writes.send(statement);
}

} // namespace Tallymere
