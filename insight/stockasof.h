#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <utility>

namespace Engine {
class Connection;
class Database;
} // namespace Engine

namespace Tallymere {

// The end of a day, or of a fiscal period.
struct StockTime
{
    QDate day; // null: of the period
    int year = 0;
    int period = 0;

    QString text() const; // "31 Mar 26"; "the end of period 3/2026"
};

// The quantity on hand as it was: what is on hand now with all that came later taken back, as the perpetual reports
// do it. By date, a movement without one counts as long past.
class StockAsOf
{
public:
    // Reads what came later, all of one moment.
    StockAsOf(Engine::Database &database, const StockTime &time);
    // The same within the moment that the connection reads.
    StockAsOf(Engine::Connection &moment, const StockTime &time);

    double onHand(int item, int location) const { return m_onHand.value({item, location}); }

private:
    void read(Engine::Connection &moment, const StockTime &time);

    QHash<std::pair<int, int>, double> m_onHand; // by item and location
};

} // namespace Tallymere
