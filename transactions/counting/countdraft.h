#pragma once

#include "transactions/counting/countsource.h"

#include <optional>
#include <QDate>
#include <QDateTime>

namespace Engine {
class Database;
}

namespace Tallymere {

// What a user has counted at a location and not turned into a usage yet.
struct CountDraft
{
    QDateTime saved;
    QDate date; // of the inventory
    ZeroCounts zeroCounts = ZeroCounts::Excluded;
    CountList::Order order = CountList::Order::ItemNo;
    ItemQuantities counts;
    ItemCosts costs = {}; // standard costs that have been typed
    CountMarks marks = {}; // of the counts
    QString id = {}; // tells the count from every other one
    // More may be given to save() of these than of the items counted or typed for.
    ItemQuantities recorded = {}; // what the books held
    ItemNumbers itemNos = {};
};

// The drafts of one user of one database on this machine, a file for each location. They outlive the program, however it
// ends. Another database in the same place has none of them, nor has a copy elsewhere.
class CountDrafts
{
public:
    // What databases are told apart by.
    static QString nameOf(Engine::Database &database);

    // The folder in which all drafts are kept; where programs keep their data unless given.
    CountDrafts(const QString &database, const QString &user, const QString &folder = standardFolder());
    static QString standardFolder();

    std::optional<CountDraft> load(int location) const; // nothing where there is none that can be read
    QList<int> locations() const; // that have one
    void save(int location, const CountDraft &draft) const; // throws RuleError
    void drop(int location) const;

private:
    QString fileOf(int location) const;

    QString m_folder;
};

} // namespace Tallymere
