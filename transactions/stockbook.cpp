#include "transactions/stockbook.h"

#include "engine/dialect.h"
#include "engine/groupedwrites.h"
#include "engine/sqlcondition.h"

#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

StockBook::StockBook(Engine::Connection &connection)
{
    const Engine::Dialect &dialect = connection.dialect();
    m_readCosts =
        connection.prepare(u"SELECT ItemID, WgtAvgCost FROM Item WHERE "_s + dialect.inNumberList(u"ItemID"_s));
    m_readBalances = connection.prepare(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance WHERE "_s
                                        + dialect.inNumberList(u"ItemID"_s) + u" ORDER BY ItemID, WarehouseID"_s);
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
    readCosts(list);
    readBalances(list);
}

void StockBook::forget() { m_items.clear(); }

void StockBook::readCosts(const QString &items)
{
    m_readCosts->bindText(0, items);
    while (m_readCosts->next())
        m_items[m_readCosts->intAt(0)].average = m_readCosts->doubleAt(1);
    m_readCosts->reset();
}

void StockBook::readBalances(const QString &items)
{
    m_readBalances->bindText(0, items);
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

void StockBook::setAverageCost(qint64 item, Money cost, Engine::Writes &writes)
{
    m_updateCost->bindDouble(0, cost.toDouble());
    m_updateCost->bindInt(1, item);
    writes.send(*m_updateCost);
    m_items.at(item).average = cost.toDouble();
}

void StockBook::addToBalance(const Engine::Value &item, const Engine::Value &warehouse, double quantity,
                             Engine::Writes &writes)
{
    Balance *balance = findBalance(item, warehouse);
    if (balance == nullptr) {
        insertBalance(item, warehouse, quantity, writes);
        return;
    }
    const double onHand = balance->onHand + quantity;
    if (!std::isfinite(onHand))
        throw std::range_error("a quantity on hand is out of range");
    m_updateBalance->bindDouble(0, onHand);
    m_updateBalance->bindInt(1, item.toInt64());
    m_updateBalance->bindInt(2, warehouse.toInt64());
    writes.send(*m_updateBalance);
    balance->onHand = onHand;
}

StockBook::Balance *StockBook::findBalance(const Engine::Value &item, const Engine::Value &warehouse)
{
    if (item.isNull() || warehouse.isNull())
        return nullptr;
    const qint64 wanted = warehouse.toInt64();
    for (Balance &balance : m_items.at(item.toInt64()).balances)
        if (balance.warehouse == wanted)
            return &balance;
    return nullptr;
}

void StockBook::insertBalance(const Engine::Value &item, const Engine::Value &warehouse, double quantity,
                              Engine::Writes &writes)
{
    m_insertBalance->bindDouble(0, quantity);
    m_insertBalance->bind(1, item);
    m_insertBalance->bind(2, warehouse);
    writes.send(*m_insertBalance);
    if (item.isNull() || warehouse.isNull())
        return;
    std::vector<Balance> &balances = m_items.at(item.toInt64()).balances;
    const qint64 location = warehouse.toInt64();
    const auto place = std::find_if(balances.begin(), balances.end(),
                                    [location](const Balance &other) { return other.warehouse > location; });
    balances.insert(place, {location, quantity});
}

} // namespace Tallymere
