#pragma once

#include "data/numbercounter.h"
#include "master/hostsync.h"

namespace Tallymere {

// Brings the host's items ("Items") into the inventory. An item whose number reads as the ID of a host item ("000123"
// is 123) takes its description, price and type when one of the first two has changed; a host item without such an
// item becomes one. Nothing is deleted.
//
// New keys are reserved in the item counter before the first item is added, with one more that stays unused, also
// when nothing is new. Where the update or the reservation fails the run goes on: without a reservation the keys lie
// above every item and the counter, which follows afterwards if it can; a connection or file that is lost ends it all
// the same. Any other failure is an EngineError that ends the run: nothing is written when another user works on the
// items (or posts receipts); a failing insert keeps the items added before it. RuleError names a host item whose price
// is out of range, before anything is written.
class ItemSync
{
public:
    explicit ItemSync(Engine::Database &database)
        : m_database(database)
    {
    }

    HostSyncResult run(Progress &progress);

private:
    struct HostItem;
    struct Keys
    {
        qint64 first = 0;
        bool reserved = false;
    };

    void requireUsablePrices() const;
    QString updateLinked(qint64 &updated) const;
    std::vector<HostItem> readNewItems() const;
    Keys reserveKeys(qint64 count) const;
    qint64 firstUnusedKey() const;
    void raiseCounter(qint64 next) const;
    bool changeCounter(const CounterRule &rule) const;

    Engine::Database &m_database;
};

} // namespace Tallymere
