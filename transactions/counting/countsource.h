#pragma once

#include "master/costing.h"
#include "transactions/counting/countlist.h"

#include <QCoreApplication>

namespace Engine {
class Database;
}

namespace Tallymere {

// A location as a list offers it.
struct CountLocation
{
    int id = 0;
    QString name;

    QString text() const; // the name, and the key behind it
};

enum class ZeroCounts { Excluded, Included }; // items without any balance

// Why an item is not in the list of a count.
enum class NotCounted { Unknown, Suspended, NoInventory, NotHere };

// What a count reads from the books.
class CountSource
{
public:
    explicit CountSource(Engine::Database &database)
        : m_database(database)
    {
    }

    std::vector<CountLocation> locations() const; // by name
    // The items to be counted at a location: of inventory types, neither suspended nor pledged.
    CountList list(int location, ZeroCounts zeroCounts) const;
    bool hasUnposted(int location) const; // documents of any kind wait to be posted there
    ItemQuantities unpostedUsage(int location) const;
    ItemQuantities balances(int location) const; // as stored now
    QHash<qint64, ItemCost> costs() const; // of all items
    NotCounted reasonNotCounted(const QString &itemNo) const; // in any letter case

private:
    Engine::Database &m_database;
};

} // namespace Tallymere
