#pragma once

#include "engine/values/fieldname.h"
#include "engine/values/money.h"

#include <optional>
#include <QDate>
#include <QString>
#include <vector>

namespace Engine {
class Connection;
class Database;
} // namespace Engine

namespace Tallymere {

// A posted line of a receipt, and what it did to the item's weighted average cost. Quantities are those of all locations,
// in stock units. An average that is not known is one that nothing tells: what was set by hand is not recorded.
struct CostStep
{
    QDate date;
    QString description; // "Receipt: 1001   PO: PO26001"
    QString location; // empty when it is gone
    int receipt = 0;
    double received = 0;
    Engine::Money unitCost; // in the home currency
    double onHandBefore = 0;
    std::optional<Engine::Money> averageBefore;
    double onHandAfter = 0;
    std::optional<Engine::Money> averageAfter;
};

// How files and reports name what a step knows of the stock and the average.
namespace TrailFields {

using enum Engine::FieldType;

inline constexpr Engine::FieldName<Float> OnHandBefore{u"OnHandBefore"};
inline constexpr Engine::FieldName<Money> AverageBefore{u"AverageBefore"};
inline constexpr Engine::FieldName<Float> OnHandAfter{u"OnHandAfter"};
inline constexpr Engine::FieldName<Money> AverageAfter{u"AverageAfter"};

} // namespace TrailFields

// How the average cost of an item has come about: its receipts in the order in which they were posted.
struct CostTrail
{
    QString item; // "A10 Apples"
    std::vector<CostStep> steps;
    Engine::Money stored; // the average as it stands with the item
    std::optional<Engine::Money> calculated; // what the receipts come to
    QString since; // what is known for sure begins with this receipt; empty: with nothing

    bool isOverridden() const { return calculated != stored; }
    QString verdict() const; // in words
};

// All of one moment. Throws RuleError when there is no such item. The posting's own arithmetic (receiptcost.h) is done
// again over the item's history, from a cost of 0 when it was new; where that does not lead to the stored average, from a
// cost that is not known.
CostTrail costTrail(Engine::Database &database, int item);
CostTrail costTrail(Engine::Connection &moment, int item); // for somebody who reads more at the same moment

} // namespace Tallymere
