#pragma once

#include "engine/store/driver.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <utility>
#include <vector>

namespace Engine {
class Database;
}

namespace Tallymere {

// A row of the history, as reports count it.
struct Movement
{
    int key = 0; // of the row
    int type = 0; // a TransType
    int year = 0;
    int period = 0;
    QDate date{};
    QString description{};
    double quantity = 0;

    // What it adds to the stock; a type that is unknown puts in.
    double change() const;
};

// The movements from a fiscal period on, item by item. They are read for many items with one statement, so that a report
// neither asks the store once for each of its lines nor holds more than those items' rows.
class Movements
{
public:
    // Of one location, or of all (0 or less). With byLocation the movements of each location are a list of their own.
    Movements(Engine::Database &database, int year, int period, int warehouseId, bool byLocation);

    using Account = std::pair<int, int>; // item and location; location 0 unless byLocation
    // Reads those of the items and lets go of what has been read before. Returns how many there are.
    int read(const std::vector<qint64> &items);
    // In the order of period and date. Of an item that has been read.
    const std::vector<Movement> &of(Account account) const;

private:
    Engine::StatementPtr prepared(const std::vector<qint64> &items) const;

    Engine::Database &m_database;
    int m_year;
    int m_period;
    int m_warehouseId;
    bool m_byLocation;
    QHash<Account, std::vector<Movement>> m_read;
};

} // namespace Tallymere
