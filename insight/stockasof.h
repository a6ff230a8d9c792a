#pragma once

#include <QDate>
#include <QHash>
#include <utility>

namespace Engine {
class Database;
}

namespace Tallymere {

// The end of a day, or of a fiscal period.
struct StockTime
{
    QDate day; // null: of the period
    int year = 0;
    int period = 0;
};

// The quantity on hand as it was: what is on hand now with all that came later taken back, as the perpetual reports
// do it. By date, a movement without one counts as long past.
class StockAsOf
{
public:
    // Reads what came later, all of one moment.
    StockAsOf(Engine::Database &database, const StockTime &time);

    double onHand(int item, int location) const { return m_onHand.value({item, location}); }

private:
    QHash<std::pair<int, int>, double> m_onHand; // by item and location
};

} // namespace Tallymere
