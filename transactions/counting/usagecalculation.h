#pragma once

#include "base/prompts.h"
#include "transactions/counting/countlist.h"
#include "transactions/counting/countsource.h"

#include <QDate>
#include <QSet>

namespace Engine {
class Database;
}

namespace Tallymere {

// A usage document that a count has led to.
struct CalculatedUsage
{
    qint64 id = 0;
    QString number;
    int lines = 0;
};

struct UsageLine
{
    qint64 itemId = 0;
    double quantity = 0;
    Engine::Money unitCost;
};

// What a count differs by, prior minus counted, an item in a line in the order of the list; at those costs.
std::vector<UsageLine> usageLines(const CountList &list, const QHash<qint64, ItemCost> &costs);

// Warns of each item that differs and has no cost, unless it is among those that have been warned of, and adds it to them.
void warnOfMissingCosts(const CountList &list, const QHash<qint64, ItemCost> &costs, QSet<qint64> &warned,
                        Prompts &prompts);
bool lacksOtherCosts(const CountList &list, const QHash<qint64, ItemCost> &costs, const QSet<qint64> &warned);

// Writes what the list differs by as one unposted usage document of a number that no usage has, and when its items were
// counted. Another user's hold on the usages refuses it with EngineError before a number is used. A failure of the store
// leaves the lines written before it; a crash leaves the whole document or none.
CalculatedUsage writeUsage(Engine::Database &database, const CountList &list, const QHash<qint64, ItemCost> &costs,
                           int location, QDate date);

} // namespace Tallymere
