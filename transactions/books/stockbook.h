#pragma once

#include "engine/store/driver.h"
#include "engine/values/money.h"

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace Engine {
class Writes;
}

namespace Tallymere {

// A balance as a movement leaves it.
struct BalanceChange
{
    double onHand = 0;
    bool isNew = false; // there is none yet
};

// Quantities on hand and average costs during a posting run. Each is read once. A change is made in the book first and
// written afterwards, so that all of a document can be refused before any of it is written; once something has been
// refused the book is ahead of the store and must forget. Right only while the run holds the tables for itself. Grows with
// the items and locations that are touched, not with the lines.
class StockBook
{
public:
    explicit StockBook(Engine::Connection &connection);

    // Reads those of the items that are not known yet.
    void require(const std::vector<qint64> &items);
    void forget(); // reads everything anew when required again

    // The following need the item to have been required.
    double onHand(qint64 item) const; // over all locations
    // Nothing when there is no such item. Throws AmountTooLarge for a stored cost beyond the range of money.
    std::optional<Engine::Money> averageCost(qint64 item) const;
    void setAverageCost(qint64 item, Engine::Money cost);
    // Adds to the balance of an item at a location. An item or location that is null has none to add to. Throws RuleError
    // when the balance would become infinite, as no movement brings it back from there.
    BalanceChange addToBalance(const Engine::Value &item, const Engine::Value &warehouse, double quantity);

    // Send what has been changed. Nulls are written as they are, for the store to refuse.
    void writeAverageCost(qint64 item, Engine::Money cost, Engine::Writes &writes);
    void writeBalance(const Engine::Value &item, const Engine::Value &warehouse, const BalanceChange &change,
                      Engine::Writes &writes);

private:
    struct Balance
    {
        qint64 warehouse;
        double onHand;
    };
    struct Item
    {
        std::optional<double> average;
        std::vector<Balance> balances; // in the order of the locations, in which they are summed up
    };

    void readCosts(const QString &items);
    void readBalances(); // as asked

    std::unordered_map<qint64, Item> m_items;
    Engine::StatementPtr m_readCosts;
    Engine::StatementPtr m_readBalances;
    Engine::StatementPtr m_updateCost;
    Engine::StatementPtr m_updateBalance;
    Engine::StatementPtr m_insertBalance;
};

} // namespace Tallymere
