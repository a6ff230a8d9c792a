#include "bench/rawposting.h"

#include "transactions/kinds/receiptcost.h"

#include <cstdlib>
#include <libpq-fe.h>
#include <map>
#include <optional>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <vector>

using Engine::Money;

namespace {

// One statement of either store: texts in, texts out would distort SQLite, so each store has its own binding.
struct Step
{
    const char *text;
};
// What differs between the kinds of documents.
struct RawKind
{
    const char *unposted;
    Step mark, lines, history;
    const char *description;
    bool averages; // the items' costs follow
    double direction;
};
constexpr RawKind receiptKind{
    "SELECT I.ReceiptID, I.ReceiptNo, I.GLYear, I.GLPeriod, I.ReceiptDate, I.WarehouseID, C.ExchangeRate "
    "FROM IReceipt I INNER JOIN Vendor V ON I.VendorID = V.VendorID "
    "LEFT OUTER JOIN Currency C ON V.CurrencyID = C.CurrencyID WHERE I.Posted = false ORDER BY I.ReceiptID",
    {"UPDATE IReceipt SET Posted = true WHERE ReceiptID = $1"},
    {"SELECT ItemID, QtyReceived, UnitCost FROM IRecDet WHERE ReceiptID = $1 ORDER BY Seq"},
    {"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, "
     "UnitCost, TransDescription, ReceiptID) VALUES ($1, $2, $3, $4, 3, $5, $6, $7, $8, $9)"},
    "Receipt: ",
    true,
    1};
constexpr RawKind usageKind{
    "SELECT UsageID, UsageNo, GLYear, GLPeriod, InventoryDate, WarehouseID, 0 FROM IUsage WHERE Posted = false "
    "ORDER BY UsageID",
    {"UPDATE IUsage SET Posted = true WHERE UsageID = $1"},
    {"SELECT L.ItemID, L.Quantity, L.UnitCost FROM IUsageDet L INNER JOIN Item I ON L.ItemID = I.ItemID "
     "INNER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID WHERE L.UsageID = $1 AND T.Inventory = true ORDER BY "
     "Seq"},
    {"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, "
     "UnitCost, TransDescription, UsageID) VALUES ($1, $2, $3, $4, 5, $5, $6, $7, $8, $9)"},
    "Inventory Usage No: ",
    false,
    -1};
// Without costs, and by signed quantities.
constexpr RawKind adjustmentKind{
    "SELECT AdjustmentID, AdjDescription, GLYear, GLPeriod, AdjDate, WarehouseID, 0 FROM IAdjust "
    "WHERE Posted = false ORDER BY AdjustmentID",
    {"UPDATE IAdjust SET Posted = true WHERE AdjustmentID = $1"},
    {"SELECT ItemID, Quantity, 0 FROM IAdjDet WHERE AdjustmentID = $1 ORDER BY Seq"},
    {"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
     "TransDescription, AdjustmentID) "
     "VALUES ($1, $2, $3, $4, 1, $5, $6, NULLIF(CAST($7 AS double precision), 0), $8, $9)"},
    "",
    false,
    1};
constexpr Step sum{"SELECT sum(QtyOnHand) FROM IBalance WHERE ItemID = $1"};
constexpr Step cost{"SELECT WgtAvgCost FROM Item WHERE ItemID = $1"};
constexpr Step setCost{"UPDATE Item SET WgtAvgCost = $1 WHERE ItemID = $2"};
constexpr Step balance{"SELECT QtyOnHand FROM IBalance WHERE ItemID = $1 AND WarehouseID = $2"};
constexpr Step setBalance{"UPDATE IBalance SET QtyOnHand = $1 WHERE ItemID = $2 AND WarehouseID = $3"};
constexpr Step addBalance{"INSERT INTO IBalance (QtyOnHand, ItemID, WarehouseID) VALUES ($1, $2, $3)"};

struct Document
{
    long long id;
    std::string number;
    int year, period;
    std::string date;
    int warehouse;
    double rate;
};
struct Line
{
    int item;
    double quantity, unitCost;
};

// --- SQLite
// ---------------------------------------------------------------------------------------------------------

class SqliteRun
{
public:
    SqliteRun(const RawKind &kind, const QString &file)
        : m_kind(kind)
    {
        check(sqlite3_open(file.toUtf8().constData(), &m_db));
        sqlite3_busy_timeout(m_db, 60'000); // many others may be about
        run("PRAGMA cache_size = -262144; PRAGMA synchronous = FULL; PRAGMA wal_autocheckpoint = 64000");
        for (const Step *step : {&m_kind.mark, &m_kind.lines, &m_kind.history, &setCost, &setBalance, &addBalance})
            m_statements.emplace_back(step->text, prepare(step->text));
    }
    ~SqliteRun()
    {
        for (const auto &statement : m_statements)
            sqlite3_finalize(statement.second);
        sqlite3_close(m_db);
    }

    void post()
    {
        run("BEGIN IMMEDIATE");
        readBooks();
        for (const Document &document : documents())
            postDocument(document);
        run("COMMIT");
    }

private:
    void check(int code)
    {
        if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW)
            throw std::runtime_error(sqlite3_errmsg(m_db));
    }
    void run(const char *text) { check(sqlite3_exec(m_db, text, nullptr, nullptr, nullptr)); }
    sqlite3_stmt *prepare(const char *text)
    {
        sqlite3_stmt *statement = nullptr;
        check(sqlite3_prepare_v2(m_db, text, -1, &statement, nullptr));
        return statement;
    }
    sqlite3_stmt *statement(const Step &step)
    {
        for (const auto &[text, statement] : m_statements)
            if (text == step.text) {
                sqlite3_reset(statement);
                return statement;
            }
        return nullptr;
    }
    void execute(sqlite3_stmt *statement) { check(sqlite3_step(statement)); }
    // All that a line looks up, so that it costs three statements and no more: history, balance and cost.
    void readBooks()
    {
        sqlite3_stmt *row = prepare("SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance");
        while (sqlite3_step(row) == SQLITE_ROW) {
            m_balances[{sqlite3_column_int(row, 0), sqlite3_column_int(row, 1)}] = sqlite3_column_double(row, 2);
            m_onHand[sqlite3_column_int(row, 0)] += sqlite3_column_double(row, 2);
        }
        sqlite3_finalize(row);
        row = prepare("SELECT ItemID, WgtAvgCost FROM Item");
        while (sqlite3_step(row) == SQLITE_ROW)
            m_costs[sqlite3_column_int(row, 0)] = Money::fromDouble(sqlite3_column_double(row, 1));
        sqlite3_finalize(row);
    }

    static std::string text(sqlite3_stmt *row, int column)
    {
        return reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    }
    std::vector<Document> documents()
    {
        std::vector<Document> all;
        sqlite3_stmt *row = prepare(m_kind.unposted);
        while (sqlite3_step(row) == SQLITE_ROW)
            all.push_back({sqlite3_column_int64(row, 0), text(row, 1), sqlite3_column_int(row, 2),
                           sqlite3_column_int(row, 3), text(row, 4), sqlite3_column_int(row, 5),
                           sqlite3_column_double(row, 6)});
        sqlite3_finalize(row);
        return all;
    }

    void postDocument(const Document &document)
    {
        sqlite3_stmt *marking = statement(m_kind.mark);
        sqlite3_bind_int64(marking, 1, document.id);
        execute(marking);
        sqlite3_stmt *row = statement(m_kind.lines);
        sqlite3_bind_int64(row, 1, document.id);
        while (sqlite3_step(row) == SQLITE_ROW)
            postLine(document,
                     {sqlite3_column_int(row, 0), sqlite3_column_double(row, 1), sqlite3_column_double(row, 2)});
    }

    void postLine(const Document &document, const Line &line)
    {
        const Money unit = Tallymere::lineCost(Money::fromDouble(line.unitCost), document.rate);
        const std::string description = m_kind.description + document.number;
        sqlite3_stmt *insert = statement(m_kind.history);
        sqlite3_bind_int(insert, 1, line.item);
        sqlite3_bind_int(insert, 2, document.warehouse);
        sqlite3_bind_int(insert, 3, document.year);
        sqlite3_bind_int(insert, 4, document.period);
        sqlite3_bind_text(insert, 5, document.date.c_str(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_double(insert, 6, line.quantity);
        sqlite3_bind_double(insert, 7, unit.toDouble());
        sqlite3_bind_text(insert, 8, description.c_str(), -1, SQLITE_TRANSIENT);
        sqlite3_bind_int64(insert, 9, document.id);
        execute(insert);

        if (m_kind.averages)
            average(line, unit);

        const double change = m_kind.direction * line.quantity;
        const auto [held, isNew] = m_balances.try_emplace({line.item, document.warehouse}, 0);
        held->second += change;
        m_onHand[line.item] += change;
        sqlite3_stmt *write = statement(isNew ? addBalance : setBalance);
        sqlite3_bind_double(write, 1, held->second);
        sqlite3_bind_int(write, 2, line.item);
        sqlite3_bind_int(write, 3, document.warehouse);
        execute(write);
    }

    void average(const Line &line, Money unit)
    {
        const auto before = m_costs.find(line.item);
        if (before == m_costs.end())
            return;
        const auto after =
            Tallymere::averageAfterReceipt({before->second, m_onHand[line.item]}, line.quantity, unit);
        if (!after)
            return;
        before->second = *after;
        sqlite3_stmt *update = statement(setCost);
        sqlite3_bind_double(update, 1, after->toDouble());
        sqlite3_bind_int(update, 2, line.item);
        execute(update);
    }

    const RawKind &m_kind;
    sqlite3 *m_db = nullptr;
    std::vector<std::pair<const char *, sqlite3_stmt *>> m_statements;
    std::map<std::pair<int, int>, double> m_balances; // by item and location
    std::map<int, double> m_onHand; // of an item, everywhere
    std::map<int, Money> m_costs;
};

// --- PostgreSQL
// -----------------------------------------------------------------------------------------------------

class PostgresRun
{
public:
    PostgresRun(const RawKind &kind, const QString &conninfo)
        : m_kind(kind)
        , m_link(PQconnectdb(conninfo.toUtf8().constData()))
    {
        for (const Step *step : {&m_kind.mark, &m_kind.lines, &m_kind.history, &sum, &cost, &setCost, &balance,
                                 &setBalance, &addBalance})
            PQclear(checked(PQprepare(m_link, step->text, step->text, 0, nullptr)));
    }
    ~PostgresRun() { PQfinish(m_link); }

    void post()
    {
        PGresult *rows = checked(PQexec(m_link, m_kind.unposted));
        std::vector<Document> documents;
        for (int i = 0; i < PQntuples(rows); ++i)
            documents.push_back({std::atoll(PQgetvalue(rows, i, 0)), PQgetvalue(rows, i, 1),
                                 std::atoi(PQgetvalue(rows, i, 2)), std::atoi(PQgetvalue(rows, i, 3)),
                                 PQgetvalue(rows, i, 4), std::atoi(PQgetvalue(rows, i, 5)),
                                 std::atof(PQgetvalue(rows, i, 6))});
        PQclear(rows);
        for (const Document &document : documents) {
            PQclear(checked(PQexec(m_link, "BEGIN")));
            postDocument(document);
            PQclear(checked(PQexec(m_link, "COMMIT")));
        }
    }

private:
    PGresult *checked(PGresult *result)
    {
        const ExecStatusType status = PQresultStatus(result);
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw std::runtime_error(PQresultErrorMessage(result));
        return result;
    }
    PGresult *ask(const Step &step, const std::vector<std::string> &parameters)
    {
        std::vector<const char *> values;
        for (const std::string &parameter : parameters)
            values.push_back(parameter.c_str());
        return checked(
            PQexecPrepared(m_link, step.text, static_cast<int>(values.size()), values.data(), nullptr, nullptr, 0));
    }
    void tell(const Step &step, const std::vector<std::string> &parameters) { PQclear(ask(step, parameters)); }
    std::optional<double> single(const Step &step, const std::vector<std::string> &parameters)
    {
        PGresult *rows = ask(step, parameters);
        std::optional<double> value;
        if (PQntuples(rows) > 0)
            value = std::atof(PQgetvalue(rows, 0, 0));
        PQclear(rows);
        return value;
    }
    static std::string number(double value) { return QByteArray::number(value, 'g', 17).toStdString(); }

    void postDocument(const Document &document)
    {
        const std::string id = std::to_string(document.id);
        tell(m_kind.mark, {id});
        PGresult *rows = ask(m_kind.lines, {id});
        for (int i = 0; i < PQntuples(rows); ++i)
            postLine(document,
                     {std::atoi(PQgetvalue(rows, i, 0)), std::atof(PQgetvalue(rows, i, 1)),
                      std::atof(PQgetvalue(rows, i, 2))});
        PQclear(rows);
    }

    void postLine(const Document &document, const Line &line)
    {
        const Money unit = Tallymere::lineCost(Money::fromDouble(line.unitCost), document.rate);
        const std::string item = std::to_string(line.item);
        const std::string warehouse = std::to_string(document.warehouse);
        tell(m_kind.history,
             {item, warehouse, std::to_string(document.year), std::to_string(document.period), document.date,
              number(line.quantity), number(unit.toDouble()), m_kind.description + document.number,
              std::to_string(document.id)});
        if (m_kind.averages)
            average(line, unit);
        const auto held = single(balance, {item, warehouse});
        tell(held ? setBalance : addBalance,
             {number(held.value_or(0) + m_kind.direction * line.quantity), item, warehouse});
    }

    void average(const Line &line, Money unit)
    {
        const std::string item = std::to_string(line.item);
        const double onHand = single(sum, {item}).value_or(0);
        if (const auto before = single(cost, {item}))
            if (const auto after =
                    Tallymere::averageAfterReceipt({Money::fromDouble(*before), onHand}, line.quantity, unit))
                tell(setCost, {number(after->toDouble()), item});
    }

    const RawKind &m_kind;
    PGconn *m_link;
};

const RawKind &kindOf(RawDocuments documents)
{
    switch (documents) {
    case RawDocuments::Usage:
        return usageKind;
    case RawDocuments::Adjustments:
        return adjustmentKind;
    default:
        return receiptKind;
    }
}

} // namespace

void postRawSqlite(RawDocuments documents, const QString &file) { SqliteRun(kindOf(documents), file).post(); }

void postRawPostgres(RawDocuments documents, const QString &conninfo)
{
    PostgresRun(kindOf(documents), conninfo).post();
}
