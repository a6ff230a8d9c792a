#include "transactions/usagecalculation.h"

#include "data/fiscalperiod.h"
#include "data/numbercounter.h"
#include "engine/groupedwrites.h"
#include "engine/recordlock.h"
#include "engine/table.h"
#include "transactions/countsource.h"
#include "transactions/documentkinds.h"
#include "transactions/lastsaved.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

constexpr qint64 noCustomer = -1;

struct UsageLine
{
    qint64 itemId = 0;
    double quantity = 0;
    Money unitCost;
};

struct UsageHeader
{
    CalculatedUsage usage;
    int location = 0;
    QDate date;
    Period period;
};

// It is the key that is kept in its range here, after it has been taken; numbers go on as they are.
void number(CalculatedUsage &usage, Engine::Database &database)
{
    const DocumentKind &kind = DocumentKinds::usage();
    takeNumbers(database, u"ARInvCtl"_s, [&](CounterRow &counters) {
        usage.id = counters.takeKey(u"NextInvoiceID", kind.keyField, kind.keyTables());
        counters.restartOutside(u"NextInvoiceID", firstNumber, lastNumber, firstCountedKey + 1);
        usage.number = QString::number(counters.take(u"NextInvoiceNo"));
    });
}

Period periodOf(Engine::Database &database, QDate date)
{
    Engine::Table company(database, u"Company"_s);
    company.readOnly = true;
    company.open();
    return defaultPeriod(FiscalSettings::of(company), date);
}

void warnOfMissingCost(const CountRow &row, ItemCost::Method method, Prompts &prompts)
{
    const QString which = method == ItemCost::Method::Average
        ? TransactionsTexts::tr("has no Weighted Average Cost.")
        : TransactionsTexts::tr("has no Standard Cost assigned to it.");
    prompts.warn(
        TransactionsTexts::tr("%1, Item ID: %2\r\n%3\r\nThe usage will be calculated with a zero cost.\r\n"
                              "You should edit the resulting usage record and \r\ncorrect the cost, if necessary.")
            .arg(row.description, QString::number(row.itemId), which));
}

std::vector<UsageLine> usageLines(Engine::Database &database, const CountList &list, Prompts &prompts)
{
    const QHash<qint64, ItemCost> costs = CountSource(database).costs();
    std::vector<UsageLine> lines;
    for (int i = 0; i < list.size(); ++i) {
        const CountRow &row = list.row(i);
        if (!row.differs())
            continue;
        const ItemCost cost = costs.value(row.itemId);
        if (cost.method != ItemCost::Method::None && cost.cost == Money())
            warnOfMissingCost(row, cost.method, prompts);
        lines.push_back({row.itemId, -row.difference(), cost.cost});
    }
    return lines;
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

void write(Engine::Database &database, const UsageHeader &header, const std::vector<UsageLine> &lines)
{
    Engine::Connection &connection = database.connection();
    const Engine::RecordLock lock(connection, database.session(), u"IUsage"_s, {header.usage.id},
                                  TransactionsTexts::tr("Usage %1").arg(header.usage.number));
    Engine::GroupedWrites writes(database);
    writes.apply([&](Engine::Writes &step) {
        writeHeader(connection, header, step);
        writeLines(connection, header.usage.id, lines, step);
    });
    writes.finish();
}

} // namespace

std::optional<CalculatedUsage> calculateUsage(Engine::Database &database, const CountList &list, int location,
                                              QDate date, Prompts &prompts)
{
    if (!list.hasUsage())
        return std::nullopt;
    UsageHeader header{.usage = {}, .location = location, .date = date, .period = {}};
    number(header.usage, database);
    header.period = periodOf(database, date);
    const std::vector<UsageLine> lines =
        usageLines(database, list, prompts); // nothing is locked while he is warned
    rememberSaved(database, TransType::Usage, header.usage.id);
    write(database, header, lines);
    header.usage.lines = static_cast<int>(lines.size());
    return header.usage;
}

} // namespace Tallymere
