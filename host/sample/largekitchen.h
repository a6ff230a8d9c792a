#pragma once

#include "base/prompts.h"
#include "host/sample/chance.h"
#include "host/sample/kitchenbooks.h"

#include <array>
#include <vector>

namespace Tallymere {

// Three years of a large kitchen: 5,000 items, 10 locations, 1,000,000 history rows of posted receipts, usage and
// adjustments with their documents, and some of each kind that wait for posting. Balances and average costs are what
// posting the documents one after the other gives. The same seed gives the same rows.
//
// Goes on from a database that holds the sample's master data. One transaction.
class LargeKitchen
{
public:
    struct Size
    {
        int items = 5000; // with those of the sample's catalogue
        int historyRows = 1'000'000;
    };

    LargeKitchen(Engine::Database &database, std::uint64_t seed, Size size);

    void fill(Progress &progress);

private:
    static constexpr int locationCount = 10;
    static constexpr int linesPerDocument = 20;
    static constexpr int unpostedOfAKind = 25;

    struct Item
    {
        qint64 key = 0;
        Engine::Money basePrice;
        Engine::Money average;
        double onHand = 0; // over all locations
        std::array<double, locationCount> balances{};
        std::array<bool, locationCount> hasBalance{};
    };
    struct Vendor
    {
        qint64 key = 0;
        double exchangeRate = 0;
    };

    void readMasters();
    void keepBooks(Progress &progress);
    int documents() const { return m_size.historyRows / linesPerDocument; }
    void addDocument(KitchenBooks &books, int number, int lineCount);
    void addUnposted(KitchenBooks &books);
    std::vector<KitchenLine> receive(KitchenDocument &document, int location, int lineCount, double growth);
    std::vector<KitchenLine> use(int location, int lineCount);
    std::vector<KitchenLine> adjust(int location, int lineCount);
    Item *itemInStock(int location);
    void writeStock();

    Engine::Database &m_database;
    const Size m_size;
    Chance m_chance;
    std::vector<Item> m_items;
    std::vector<Vendor> m_vendors;
    std::vector<qint64> m_locations;
};

} // namespace Tallymere
