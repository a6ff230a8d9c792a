#pragma once

#include <functional>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// Something in the books that should not be so.
struct BookFinding
{
    QString where; // "Apples (A10) at Office"
    QString what; // what is wrong
    QString effect; // what it does to the figures
    QString remedy; // what mends it
    // Mends it, where there is one right answer. In the transaction that has read it, which holds the tables.
    std::function<void(Engine::Database &)> mend = {};
    // Rows cannot be read, so that what other checks make of the rest is nothing to mend anything by.
    bool hidesRows = false;

    // All in one line: "Apples (A10) at Office: On hand is 12, ..."
    QString text() const { return QStringLiteral("%1: %2 %3 %4").arg(where, what, effect, remedy); }
};

} // namespace Tallymere
