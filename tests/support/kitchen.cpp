#include "tests/support/kitchen.h"

#include "host/tables/hosttables.h"

#include <QThread>

using namespace Qt::StringLiterals;

Kitchen::Kitchen(Store store)
    : TestStore(store)
{
    for (const Engine::TableLayout *layout : Tallymere::Layouts::applied())
        database().createTable(*layout);
    execute(uR"(
        INSERT INTO Company (CompanyNo, FiscalYear, DefaultPeriodYYYY, DefaultPeriodPP) VALUES (1, 2026, 2026, 3);
        INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (1, 'Office'), (2, 'Freezer');
        INSERT INTO Currency (CurrencyID, CurrencyName, ExchangeRate)
            VALUES (1, 'Home', 1), (2, 'Far', 0.75), (3, 'New', NULL);
        INSERT INTO Vendor (VendorID, VendorNo, VendorName, CurrencyID, Suspended)
            VALUES (1, 'V1', 'First', 1, false), (2, 'V2', 'Second', 2, NULL), (3, 'V3', 'Third', 3, false),
                   (4, 'V4', 'Fourth', 1, true), (5, 'V5', 'Fifth', NULL, false);
        INSERT INTO ItemType (ItemTypeID, TypeName) VALUES (1, 'Food'), (2, 'Goods');
        INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended)
            VALUES (1, 'A10', 'Apples', 1, false), (2, 'A11', 'Bread', 1, NULL), (3, 'B1', 'apricots', 2, false),
                   (4, 'X9', 'Yeast', 2, true);
    )"_s);
}

void Kitchen::makeHost() { Tallymere::HostTables::createHostTables(database(), u"Test Kitchen"_s, u"USA"_s); }

void Kitchen::addReceipt(int id, int vendor, int warehouse, const QList<Line> &lines, const QString &order)
{
    execute(u"INSERT INTO IReceipt (ReceiptID, ReceiptNo, GLYear, GLPeriod, ReceiptDate, PurchaseOrderNo, "
            "VendorID, WarehouseID, Posted) VALUES (%1, '%2', 2026, 3, '2026-03-14', '%3', %4, %5, false)"_s,
            id, 1000 + id, order, vendor, warehouse);
    int seq = 0;
    for (const Line &line : lines)
        execute(u"INSERT INTO IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost) VALUES (%1, %2, %3, %4, "
                "%5)"_s,
                id, ++seq, line.item, line.quantity, line.unitCost);
}

void Kitchen::setStock(int item, int warehouse, double onHand, double averageCost)
{
    execute(u"INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (%1, %2, %3); "
            "UPDATE Item SET WgtAvgCost = %4 WHERE ItemID = %1"_s,
            item, warehouse, onHand, averageCost);
}

double Kitchen::onHand(int item, int warehouse)
{
    return number(u"SELECT QtyOnHand FROM IBalance WHERE ItemID = %1 AND WarehouseID = %2"_s, item, warehouse);
}

double Kitchen::averageCost(int item) { return number(u"SELECT WgtAvgCost FROM Item WHERE ItemID = %1"_s, item); }

QString Kitchen::balances()
{
    return found(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY 1, 2"_s);
}

QStringList Kitchen::lines(int receipt)
{
    return rows(u"SELECT Seq, ItemID, QtyReceived, UnitCost FROM IRecDet WHERE ReceiptID = %1 ORDER BY Seq"_s,
                receipt);
}

void Kitchen::expectNoLocks()
{
    const auto other = anotherUser();
    Engine::LockManager &locks = other->database.connection().locks();
    for (const QString &table : {u"IReceipt"_s, u"IBalance"_s, u"Item"_s}) {
        bool free = false;
        // The server notices within a second that a client is gone, unless it is busy. For the same reason what is
        // locked here is given back before the connection goes.
        for (int attempt = 0; attempt < 1200 && !free; ++attempt) {
            free = locks.tryLockTable(table);
            free ? locks.unlockTable(table) : QThread::msleep(100);
        }
        EXPECT_TRUE(free) << table.toStdString();
    }
}
