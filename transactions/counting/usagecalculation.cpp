#include "transactions/counting/usagecalculation.h"

#include "data/fields.h"
#include "data/fiscalperiod.h"
#include "data/numbercounter.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/recordlock.h"
#include "transactions/books/lastsaved.h"
#include "transactions/counting/lastcounted.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

constexpr qint64 noCustomer = -1;

struct UsageHeader
{
    CalculatedUsage usage;
    int location = 0;
    QDate date;
    Period period;
};

bool isNumberTaken(Engine::Database &database, const QString &number)
{
    return !Engine::singleValue(database, u"SELECT min(UsageID) FROM IUsage WHERE UsageNo = ?"_s, {number})
                .isNull();
}

// It is the key that is kept in its range here, after it has been taken; numbers go on as they are, past those that have
// been given by hand.
void number(CalculatedUsage &usage, Engine::Database &database)
{
    const DocumentKind &kind = DocumentKinds::usage();
    takeNumbers(database, u"ARInvCtl"_s, [&](CounterRow &counters) {
        usage.id = counters.takeKey(Fields::NextInvoiceID, kind.keyField, kind.keyTables());
        counters.restartOutside(Fields::NextInvoiceID, firstNumber, lastNumber, firstCountedKey + 1);
        do {
            usage.number = QString::number(counters.take(Fields::NextInvoiceNo));
        } while (isNumberTaken(database, usage.number));
    });
}

void warnOfMissingCost(const CountRow &row, CostingMethod method, Prompts &prompts)
{
    const QString which = method == CostingMethod::Average
        ? TransactionsTexts::tr("has no Weighted Average Cost.")
        : TransactionsTexts::tr("has no Standard Cost assigned to it.");
    prompts.warn(
        TransactionsTexts::tr("%1, Item ID: %2\r\n%3\r\nThe usage will be calculated with a zero cost.\r\n"
                              "You should edit the resulting usage record and \r\ncorrect the cost, if necessary.")
            .arg(row.description, QString::number(row.itemId), which));
}

// Those that differ by something that is worth nothing only because nobody has said what it costs.
template <typename Take>
void forMissingCosts(const CountList &list, const QHash<qint64, ItemCost> &costs, Take take)
{
    for (int i = 0; i < list.size(); ++i) {
        const CountRow &row = list.row(i);
        if (!row.differs())
            continue;
        const ItemCost cost = costs.value(row.itemId);
        if (cost.method != CostingMethod::None && cost.cost == Money())
            take(row, cost.method);
    }
}

void writeHeader(Engine::Connection &connection, const UsageHeader &header, Engine::Writes &writes)
{
    const Engine::StatementPtr insert =
        connection.prepare(u"INSERT INTO IUsage (UsageID, CustomerID, UsageNo, WarehouseID, Description, "
                           "InventoryDate, GLYear, GLPeriod, Posted, Printed) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    insert->bindInt(0, header.usage.id);
    insert->bindInt(1, noCustomer);
    insert->bindText(2, header.usage.number);
    insert->bindInt(3, header.location);
    insert->bindText(4, u"Inventory No: "_s + header.usage.number);
    insert->bind(5, Engine::Value(header.date));
    insert->bindInt(6, header.period.year);
    insert->bindInt(7, header.period.number);
    insert->bindBool(8, false);
    insert->bindBool(9, false);
    writes.send(*insert);
}

void writeLines(Engine::Connection &connection, qint64 usageId, const std::vector<UsageLine> &lines,
                Engine::Writes &writes)
{
    const Engine::StatementPtr insert = connection.prepare(
        u"INSERT INTO IUsageDet (UsageID, Seq, Quantity, ItemID, UnitCost) VALUES (?, ?, ?, ?, ?)"_s);
    int seq = 0;
    for (const UsageLine &line : lines) {
        insert->bindInt(0, usageId);
        insert->bindInt(1, ++seq);
        insert->bindDouble(2, line.quantity);
        insert->bindInt(3, line.itemId);
        insert->bindDouble(4, line.unitCost.toDouble());
        writes.send(*insert);
    }
}

void write(Engine::Database &database, const UsageHeader &header, const std::vector<UsageLine> &lines,
           const CountList &list)
{
    Engine::Connection &connection = database.connection();
    Engine::GroupedWrites writes(database);
    writes.apply([&](Engine::Writes &step) {
        writeHeader(connection, header, step);
        writeLines(connection, header.usage.id, lines, step);
        rememberSaved(database, DocumentKinds::usage().posting.transType, header.usage.id, step);
        rememberCounted(database, list, header.location, header.date, step);
    });
    writes.finish();
}

} // namespace

std::vector<UsageLine> usageLines(const CountList &list, const QHash<qint64, ItemCost> &costs)
{
    std::vector<UsageLine> lines;
    for (int i = 0; i < list.size(); ++i) {
        const CountRow &row = list.row(i);
        if (row.differs())
            lines.push_back({row.itemId, -row.difference(), costs.value(row.itemId).cost});
    }
    return lines;
}

void warnOfMissingCosts(const CountList &list, const QHash<qint64, ItemCost> &costs, QSet<qint64> &warned,
                        Prompts &prompts)
{
    forMissingCosts(list, costs, [&](const CountRow &row, CostingMethod method) {
        if (warned.contains(row.itemId))
            return;
        warned.insert(row.itemId);
        warnOfMissingCost(row, method, prompts);
    });
}

bool lacksOtherCosts(const CountList &list, const QHash<qint64, ItemCost> &costs, const QSet<qint64> &warned)
{
    bool lacks = false;
    forMissingCosts(list, costs,
                    [&](const CountRow &row, CostingMethod) { lacks = lacks || !warned.contains(row.itemId); });
    return lacks;
}

// The lock on a usage that there is not tells that usages may be written, and keeps it so.
CalculatedUsage writeUsage(Engine::Database &database, const CountList &list, const QHash<qint64, ItemCost> &costs,
                           int location, QDate date)
{
    const Engine::RecordLock lock(database.connection(), database.session(), u"IUsage"_s,
                                  Engine::RecordLock::anyKey(), TransactionsTexts::tr("A new usage"));
    UsageHeader header{.usage = {}, .location = location, .date = date, .period = defaultPeriod(database, date)};
    number(header.usage, database);
    const std::vector<UsageLine> lines = usageLines(list, costs);
    write(database, header, lines, list);
    header.usage.lines = static_cast<int>(lines.size());
    return header.usage;
}

} // namespace Tallymere
