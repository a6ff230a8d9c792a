#pragma once

#include "insight/costtrail.h"
#include "master/costing.h"

namespace Tallymere {

struct DocumentKind;

struct StockAtLocation
{
    int location = 0;
    QString name; // empty when the location is gone
    double onHand = 0;
};

// What documents of one kind that are not posted have of the item.
struct WaitingStock
{
    const DocumentKind *kind = nullptr;
    int documents = 0;
    double change = 0; // of the stock, once they are posted
};

// A row of the item's history.
struct ItemMovement
{
    QDate date; // null where it has none; such come first
    QString description; // "Receipt: 1001   PO: PO26001"
    QString location;
    const DocumentKind *kind = nullptr; // of the document behind it; null for a host's
    int document = 0; // its key; 0: none
    double change = 0; // of the stock
    double onHand = 0; // at all locations after it, in the order of the dates
};

// The average cost from a date on.
struct CostPoint
{
    QDate date;
    QString description;
    int receipt = 0;
    Engine::Money cost;
};

// What is known of an item, all of one moment. Quantities are in stock units, amounts in the home currency.
struct ItemCard
{
    int item = 0;
    QString itemNo;
    QString description;
    QString typeName; // empty: it has none
    bool isSuspended = false;
    std::vector<StockAtLocation> stock; // by the names of the locations
    double onHand = 0; // of all of them
    CostingMethod method = CostingMethod::None;
    Engine::Money averageCost;
    Engine::Money standardCost;
    std::optional<Engine::Money> value; // of what is on hand (stockValue)
    std::optional<Engine::Money> lastCost; // of the last receipt that was posted
    QDate lastReceived; // its date
    std::vector<WaitingStock> waiting; // by kind; only those that have some

    // By date. Of more movements than can be told apart the last of each day, and then of each week; isThinned then.
    std::vector<ItemMovement> movements;
    bool isThinned = false;
    // What the average cost was, as far as the receipts tell, in the order in which they were posted; a receipt dated before
    // one that was posted earlier counts from that one's date.
    std::vector<CostPoint> costs;
    CostTrail trail;
};

// Throws RuleError when there is no such item.
ItemCard itemCard(Engine::Database &database, int item);

inline constexpr size_t mostMovements = 2'000; // that a card has

} // namespace Tallymere
