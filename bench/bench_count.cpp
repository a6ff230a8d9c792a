// A count of 5,000 items: from choosing the location to the list, and from the quantities to the usage document, against
// the one query and the inserts that they come down to, by the stores' own client libraries. Prints the ratios of the
// medians, and what sorting takes.
// Usage: bench_count [local|remote] [ROUNDS]

#include "bench/benchdata.h"
#include "engine/records/query.h"
#include "tests/support/spokenprompts.h"
#include "transactions/counting/stockcount.h"

#include <array>
#include <cstdio>
#include <functional>
#include <libpq-fe.h>
#include <QCoreApplication>
#include <sqlite3.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int items = 5'000;

const QString listQuery =
    u"SELECT Item.ItemID, ItemNo, TypeName, ItemDescription, UnitPrice, StandardCost, QtyOnHand, WarehouseID "
    "FROM Item JOIN ItemType ON Item.ItemTypeID = ItemType.ItemTypeID "
    "LEFT OUTER JOIN IBalance ON Item.ItemID = IBalance.ItemID WHERE Suspended = false AND Inventory = true "
    "AND NOT ItemDescription LIKE '%, Pledge' AND WarehouseID = 1 ORDER BY TypeName, lower(ItemDescription)"_s;
constexpr auto insertLine =
    "INSERT INTO IUsageDet (UsageID, Seq, Quantity, ItemID, UnitCost) VALUES (7, $1, 1, $1, 2.5)";

void require(bool done)
{
    if (!done)
        throw std::runtime_error("a raw statement failed");
}

struct Raw
{
    virtual ~Raw() = default;
    virtual int readList() = 0; // every value of every row
    virtual void writeLines() = 0; // in one transaction
};

class RawSqlite final : public Raw
{
public:
    explicit RawSqlite(const QString &file)
    {
        require(sqlite3_open(file.toUtf8().constData(), &m_db) == SQLITE_OK);
        sqlite3_exec(m_db, "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
    }
    ~RawSqlite() override { sqlite3_close(m_db); }

    int readList() override
    {
        sqlite3_stmt *rows = prepare(listQuery.toUtf8().constData());
        int count = 0;
        for (; sqlite3_step(rows) == SQLITE_ROW; ++count)
            for (int column = 0; column < sqlite3_column_count(rows); ++column)
                sqlite3_column_text(rows, column);
        sqlite3_finalize(rows);
        return count;
    }
    void writeLines() override
    {
        sqlite3_stmt *insert = prepare(insertLine);
        sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        for (int seq = 1; seq <= items; ++seq) {
            sqlite3_bind_int(insert, 1, seq);
            require(sqlite3_step(insert) == SQLITE_DONE);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        require(sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK);
    }

private:
    sqlite3_stmt *prepare(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        require(sqlite3_prepare_v2(m_db, sql, -1, &statement, nullptr) == SQLITE_OK);
        return statement;
    }
    sqlite3 *m_db = nullptr;
};

class RawPostgres final : public Raw
{
public:
    explicit RawPostgres(const QString &conninfo)
        : m_connection(PQconnectdb(conninfo.toUtf8().constData()))
    {
        PQclear(PQprepare(m_connection, "line", insertLine, 0, nullptr));
    }
    ~RawPostgres() override { PQfinish(m_connection); }

    int readList() override
    {
        PGresult *rows = PQexec(m_connection, listQuery.toUtf8().constData());
        const int count = PQntuples(rows);
        PQclear(rows);
        return count;
    }
    void writeLines() override
    {
        PQclear(PQexec(m_connection, "BEGIN"));
        for (int seq = 1; seq <= items; ++seq) {
            const std::string text = std::to_string(seq);
            const char *values[] = {text.c_str()};
            PGresult *result = PQexecPrepared(m_connection, "line", 1, values, nullptr, nullptr, 0);
            require(PQresultStatus(result) == PGRES_COMMAND_OK);
            PQclear(result);
        }
        PQclear(PQexec(m_connection, "COMMIT"));
    }

private:
    PGconn *m_connection;
};

std::unique_ptr<Raw> rawAccess(Store store, const QString &location)
{
    if (store == Store::Local)
        return std::make_unique<RawSqlite>(location);
    return std::make_unique<RawPostgres>(location);
}

void stock(Engine::Database &database)
{
    database.connection().execute(
        u"UPDATE ItemType SET CostingMethod = 2 WHERE ItemTypeID = 2; "
        "UPDATE Item SET Suspended = false, WgtAvgCost = 2.5, StandardCost = 2.5; DELETE FROM IBalance; "
        "INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) "
        "SELECT ItemID, WarehouseID, 10 FROM Item, Warehse; ANALYZE"_s);
}

struct Times
{
    std::vector<double> open, sort, calculate, rawQuery, rawInserts;
};

void measure(const BenchData &data, Store store, Times &times)
{
    const auto copy = data.copy();
    Engine::Database &database = copy->database();
    stock(database);
    const std::unique_ptr<Raw> raw = rawAccess(store, rawLocation(copy->place()));
    SpokenPrompts prompts;
    StockCount count(database, prompts);
    count.setDate(QDate(2026, 3, 14));
    // Once for both before it counts: what is read has to be in memory.
    require(raw->readList() == items && count.open(1, ZeroCounts::Excluded) && count.list().size() == items);
    times.rawQuery.push_back(seconds([&] { raw->readList(); }));
    times.open.push_back(seconds([&] { count.open(1, ZeroCounts::Excluded); }));
    times.sort.push_back(seconds([&] { count.sortBy(CountList::Order::Item); }));
    for (int row = 0; row < items; ++row)
        count.count(row, 9);
    times.calculate.push_back(seconds([&] { count.calculate(); }));
    require(Engine::singleValue(database, u"SELECT count(*) FROM IUsageDet"_s).toInt() == items);
    times.rawInserts.push_back(seconds([&] { raw->writeLines(); }));
}

void compare(Store store, int rounds)
{
    BenchData::Size size;
    size.items = items;
    const BenchData data(store, size);
    Times times;
    for (int round = 0; round < rounds; ++round)
        measure(data, store, times);
    const auto line = [store](const char *what, double ours, double raw) {
        std::printf("%-6s %d items, %-9s: ours %5.1f ms, raw %5.1f ms, ours/raw %.2f\n", storeName(store), items,
                    what, ours * 1000, raw * 1000, ours / raw);
    };
    line("list", median(times.open), median(times.rawQuery));
    line("usage", median(times.calculate), median(times.rawInserts));
    std::printf("%-6s %d items, sorting by description: %5.1f ms\n", storeName(store), items,
                median(times.sort) * 1000);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString only = QCoreApplication::arguments().value(1);
    const int rounds = std::max(1, QCoreApplication::arguments().value(2, u"5"_s).toInt());
    for (const Store store : {Store::Local, Store::Remote}) {
        if (only.isEmpty() || only == QString::fromLatin1(storeName(store)).toLower())
            compare(store, rounds);
    }
    return 0;
}
