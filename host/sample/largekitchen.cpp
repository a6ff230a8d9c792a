#include "host/sample/largekitchen.h"

#include "data/fields.h"
#include "engine/store/groupedwrites.h"
#include "host/sample/largecatalogue.h"
#include "transactions/kinds/receiptcost.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

const QDate firstDay(2023, 12, 1);
const QDate lastDay(2026, 11, 20);

constexpr int receiptPercent = 32;
constexpr int adjustmentPercent = 5;
constexpr int fillingPercent = 3; // of the time, in which the empty stores are filled
constexpr int triesForStock = 50;

} // namespace

LargeKitchen::LargeKitchen(Engine::Database &database, std::uint64_t seed, Size size)
    : m_database(database)
    , m_size(size)
    , m_chance(seed)
{
}

void LargeKitchen::fill(Progress &progress)
{
    Engine::Connection &connection = m_database.connection();
    const Engine::BulkWriting room(m_database);
    Engine::Transaction transaction(connection);
    fillCatalogue(m_database, m_size.items, m_chance);
    fillLocations(m_database, locationCount);
    readMasters();
    keepBooks(progress);
    writeStock();
    transaction.commit();
}

// Items of types that are not stocked move no stock.
void LargeKitchen::readMasters()
{
    Engine::Connection &connection = m_database.connection();
    const Engine::StatementPtr items = connection.prepare(
        u"SELECT I.ItemID, I.StandardCost FROM Item I INNER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID "
        "WHERE T.Inventory = true AND I.Suspended = false ORDER BY I.ItemID"_s);
    while (items->next()) {
        Item item;
        item.key = items->intAt(0);
        item.basePrice = Money::fromDouble(items->doubleAt(1));
        m_items.push_back(item);
    }
    const Engine::StatementPtr vendors = connection.prepare(
        u"SELECT V.VendorID, C.ExchangeRate FROM Vendor V INNER JOIN Currency C ON V.CurrencyID = C.CurrencyID "
        "WHERE V.Suspended = false ORDER BY V.VendorID"_s);
    while (vendors->next())
        m_vendors.push_back({vendors->intAt(0), vendors->doubleAt(1)});
    const Engine::StatementPtr locations =
        connection.prepare(u"SELECT WarehouseID FROM Warehse ORDER BY WarehouseID"_s);
    while (locations->next())
        m_locations.push_back(locations->intAt(0));
}

void LargeKitchen::keepBooks(Progress &progress)
{
    KitchenBooks books(m_database);
    progress.start(documents());
    for (int number = 0; number < documents(); ++number) {
        addDocument(books, number, linesPerDocument);
        progress.step();
    }
    addUnposted(books);
    books.finish();
    progress.finish();
}

void LargeKitchen::addDocument(KitchenBooks &books, int number, int lineCount)
{
    const qint64 days = firstDay.daysTo(lastDay);
    KitchenDocument document;
    document.date = firstDay.addDays(days * number / documents());
    const int location = m_chance.below(locationCount);
    document.warehouse = m_locations[static_cast<size_t>(location)];

    const bool filling = number < documents() * fillingPercent / 100;
    const int kind = m_chance.below(100);
    if (filling || kind < receiptPercent) {
        const double growth = 1.0 + 0.15 * number / documents();
        books.addReceipt(document, receive(document, location, lineCount, growth));
    } else if (kind < receiptPercent + adjustmentPercent) {
        books.addAdjustment(document, adjust(location, lineCount));
    } else {
        books.addUsage(document, use(location, lineCount));
    }
}

std::vector<KitchenLine> LargeKitchen::receive(KitchenDocument &document, int location, int lineCount,
                                               double growth)
{
    const Vendor &vendor = m_vendors[static_cast<size_t>(m_chance.below(static_cast<int>(m_vendors.size())))];
    document.vendor = vendor.key;
    std::vector<KitchenLine> lines;
    for (int i = 0; i < lineCount; ++i) {
        Item &item = m_items[static_cast<size_t>(m_chance.below(static_cast<int>(m_items.size())))];
        const double price = item.basePrice.toDouble() * growth * m_chance.between(95, 106) / 100;
        KitchenLine line;
        line.item = item.key;
        line.quantity = m_chance.between(8, 60);
        line.entered = lineCost(Money::fromDouble(price), 1.0 / vendor.exchangeRate);
        line.cost = lineCost(line.entered, vendor.exchangeRate);
        item.average =
            averageAfterReceipt({item.average, item.onHand}, line.quantity, line.cost).value_or(item.average);
        item.onHand += line.quantity;
        item.balances[static_cast<size_t>(location)] += line.quantity;
        item.hasBalance[static_cast<size_t>(location)] = true;
        lines.push_back(line);
    }
    return lines;
}

LargeKitchen::Item *LargeKitchen::itemInStock(int location)
{
    Item *item = nullptr;
    for (int i = 0; i < triesForStock; ++i) {
        item = &m_items[static_cast<size_t>(m_chance.below(static_cast<int>(m_items.size())))];
        if (item->balances[static_cast<size_t>(location)] > 0)
            break;
    }
    return item;
}

// Where hardly anything is left, more is used than the books hold: balances may go below zero.
std::vector<KitchenLine> LargeKitchen::use(int location, int lineCount)
{
    std::vector<KitchenLine> lines;
    for (int i = 0; i < lineCount; ++i) {
        Item &item = *itemInStock(location);
        double &balance = item.balances[static_cast<size_t>(location)];
        const int most = std::clamp(static_cast<int>(balance), 1, 30);
        KitchenLine line;
        line.item = item.key;
        line.quantity = m_chance.between(1, most);
        line.cost = item.average;
        item.onHand -= line.quantity;
        balance -= line.quantity;
        item.hasBalance[static_cast<size_t>(location)] = true;
        lines.push_back(line);
    }
    return lines;
}

std::vector<KitchenLine> LargeKitchen::adjust(int location, int lineCount)
{
    std::vector<KitchenLine> lines;
    for (int i = 0; i < lineCount; ++i) {
        Item &item = *itemInStock(location);
        KitchenLine line;
        line.item = item.key;
        line.quantity = m_chance.percent(60) ? -1 : m_chance.between(1, 3);
        item.onHand += line.quantity;
        item.balances[static_cast<size_t>(location)] += line.quantity;
        item.hasBalance[static_cast<size_t>(location)] = true;
        lines.push_back(line);
    }
    return lines;
}

// What has come in and gone out but is not posted yet; stock and costs do not know of it.
void LargeKitchen::addUnposted(KitchenBooks &books)
{
    const std::vector<Item> posted = m_items;
    for (int i = 0; i < unpostedOfAKind; ++i) {
        KitchenDocument document;
        document.date = lastDay.addDays(1 + i % 3);
        const int location = m_chance.below(locationCount);
        document.warehouse = m_locations[static_cast<size_t>(location)];
        const std::vector<KitchenLine> lines = receive(document, location, linesPerDocument, 1.15);
        books.addReceipt(document, lines, false);
        books.addUsage(document, use(location, linesPerDocument), false);
        if (i % 5 == 0)
            books.addAdjustment(document, adjust(location, 3), false);
    }
    m_items = posted;
}

void LargeKitchen::writeStock()
{
    Engine::Connection &connection = m_database.connection();
    MultiRowInsert balances(connection, u"IBalance"_s, {Fields::ItemID, Fields::WarehouseID, Fields::QtyOnHand});
    for (const Item &item : m_items) {
        for (size_t location = 0; location < item.balances.size(); ++location) {
            if (item.hasBalance[location])
                balances.add({item.key, m_locations[location], item.balances[location]});
        }
    }
    balances.finish();

    const Engine::StatementPtr cost = connection.prepare(u"UPDATE Item SET WgtAvgCost = ? WHERE ItemID = ?"_s);
    for (const Item &item : m_items) {
        if (item.average == Money())
            continue;
        cost->bindDouble(0, item.average.toDouble());
        cost->bindInt(1, item.key);
        cost->send();
    }
    connection.drain();
}

} // namespace Tallymere
