#pragma once

#include "base/prompts.h"
#include "transactions/countlist.h"

#include <optional>
#include <QDate>

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

// Writes what a count differs by as one unposted usage document: a line for each item, prior minus counted, in the order
// of the list. Nothing is written, and no number used, unless some item has been counted below the record. Items without a
// cost are warned of and get lines of cost 0.
//
// The document is locked while it is written, so that another user's hold on the usages refuses it with EngineError. A
// failure of the store leaves the lines written before it; a crash leaves the whole document or none.
std::optional<CalculatedUsage> calculateUsage(Engine::Database &database, const CountList &list, int location,
                                              QDate date, Prompts &prompts);

} // namespace Tallymere
