#include "base/csvlist.h"
#include "base/named.h"
#include "cli/command.h"
#include "cli/optionvalues.h"
#include "cli/texts.h"
#include "data/auditview.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/records/table.h"
#include "import/importablerows.h"
#include "insight/stockasofview.h"
#include "master/masterkinds.h"
#include "transactions/books/totalsview.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/historyview.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

OptionSpec filterOption()
{
    return {u"filter"_s, Texts::tr("EXPR"),
            Texts::tr("only the rows that meet a condition: \"(WarehouseID = 2)\"")};
}

QStringList fieldNames(const Engine::TableLayout &layout)
{
    QStringList names;
    for (const Engine::FieldDef &field : layout.fields)
        names.append(field.name);
    return names;
}

// The rows that --filter leaves. A bad expression throws EngineError, BadExpression.
void writeRows(CommandContext &context, Engine::DataSet &rows, const QList<GridColumn> &columns)
{
    if (const QString filter = context.arguments.value(u"filter"_s); !filter.isEmpty()) {
        rows.setFilter(filter);
        rows.setFiltered(true);
    }
    ConsoleProgress progress(context.console, Texts::tr("Writing"));
    writeTable(context, context.arguments.words().constLast(),
               [&](RowWriter &writer) { writeList(rows, columns, writer, progress); });
}

using TotalsSort = TotalsView::Sort;

TotalsSort totalsSort(const QString &name)
{
    if (name == "item"_L1)
        return TotalsSort::ItemNo;
    if (name == "description"_L1)
        return TotalsSort::Description;
    throw UsageError(Texts::tr("option '--sort' takes item or description, not '%1'").arg(name));
}

// What --as-of or --period asks for; nothing: the stock as it is.
std::optional<StockTime> stockTime(const Arguments &arguments)
{
    const QDate day = dateOf(arguments, u"as-of"_s);
    const std::optional<Period> period = periodOf(arguments);
    if (day.isValid() && period)
        throw UsageError(Texts::tr("--as-of and --period exclude each other"));
    if (!day.isValid() && !period)
        return std::nullopt;
    return period ? StockTime{.day = {}, .year = period->year, .period = period->number} : StockTime{.day = day};
}

void writeTotals(CommandContext &context, Engine::DataSet &rows, const QString &quantity)
{
    QList<GridColumn> columns;
    for (const QString &field : {QString(Fields::ItemID), QString(Fields::WarehouseID), QString(Fields::ItemNo),
                                 QString(Fields::ItemDescription), QString(Fields::WarehouseName)})
        columns.append({field, field});
    columns.append({quantity, Fields::QtyOnHand});
    writeRows(context, rows, columns);
}

void runTotals(CommandContext &context)
{
    const TotalsSort sort = totalsSort(context.arguments.value(u"sort"_s, u"item"_s));
    const std::optional<StockTime> time = stockTime(context.arguments);
    const auto data = context.openData();
    if (time) {
        StockAsOfView view(data->databaseTallymere());
        view.setSort(sort);
        view.setTime(*time);
        view.open();
        return writeTotals(context, view.query(), StockAsOfView::QtyThen);
    }
    TotalsView view(data->databaseTallymere(), TotalsView::figuresFor(context.arguments.value(u"filter"_s)));
    view.setSort(sort);
    view.open();
    writeTotals(context, view.query(), Fields::QtyOnHand);
}

void runHistory(CommandContext &context)
{
    const auto data = context.openData();
    HistoryView view(data->databaseTallymere());
    view.open();
    writeRows(context, view.table(),
              columnsOf(fieldNames(Layouts::iHist())
                        + QStringList{Fields::Periodppyyyy, Fields::ItemNo, Fields::ItemDescription,
                                      Fields::WarehouseName, Fields::TransTypeName}));
}

const auto auditKind = u"audit"_s;

struct ListKind
{
    QString name;
    const Engine::TableLayout *layout; // null: of no table of this system's
    QString index; // the order in which its screen opens
};

const QList<ListKind> &listKinds()
{
    static const QList<ListKind> kinds = [] {
        QList<ListKind> all;
        for (const MasterKind *master : MasterKinds::all())
            all.append({master->name, Layouts::find(master->table),
                        master->list.orders.at(master->list.firstOrder).index});
        for (const DocumentKind *document : DocumentKinds::all())
            all.append(
                {document->name, Layouts::find(document->headerTable), document->list.orders.constFirst().index});
        all.append({auditKind, nullptr, {}});
        return all;
    }();
    return kinds;
}

const ListKind &requireListKind(const QString &name)
{
    if (const ListKind *kind = findNamed(listKinds(), name))
        return *kind;
    throw UsageError(Texts::tr("'list' knows no '%1', but: %2").arg(name, namesOf(listKinds())));
}

void writeAudit(CommandContext &context, Engine::Database &database)
{
    AuditView view(database);
    view.open();
    writeRows(context, view.query(),
              columnsOf({AuditView::Day, AuditView::Time, AuditView::What, AuditView::Who, AuditView::Concerned}));
}

const ImportKind &requireImportKind(const CommandContext &context, const QString &name)
{
    const ImportKind *kind = findImportKind(name);
    if (!kind)
        throw UsageError(Texts::tr("'%1' cannot be imported").arg(name));
    for (const QString &other : {u"filter"_s, u"standby"_s, u"defuse"_s}) {
        if (context.arguments.has(other))
            throw UsageError(Texts::tr("--for-import and --%1 exclude each other").arg(other));
    }
    return *kind;
}

void writeForImport(CommandContext &context, Engine::Database &database, const ImportKind &kind)
{
    ConsoleProgress progress(context.console, Texts::tr("Writing"));
    writeTable(context, kind.name, [&](RowWriter &writer) { writeImportable(database, kind, writer, progress); });
}

void runList(CommandContext &context)
{
    const ListKind &kind = requireListKind(context.arguments.words().at(1));
    const ImportKind *importable =
        context.arguments.has(u"for-import"_s) ? &requireImportKind(context, kind.name) : nullptr;
    const auto data = context.openData();
    if (importable)
        return writeForImport(context, data->databaseTallymere(), *importable);
    if (kind.name == auditKind)
        return writeAudit(context, data->databaseTallymere());
    Engine::TableReader table(data->databaseTallymere(), kind.layout->name);
    table.setIndex(kind.index);
    table.open();
    writeRows(context, table, columnsOf(fieldNames(*kind.layout)));
}

} // namespace

Command totalsCommand()
{
    Command command;
    command.name = u"totals"_s;
    command.summary = Texts::tr("the quantity on hand of every item at every location, as CSV");
    command.options = csvOptions();
    command.options += {filterOption(),
                        standbyOption(),
                        {u"sort"_s, Texts::tr("ORDER"), Texts::tr("item (by number, the default) or description")},
                        {u"as-of"_s, Texts::tr("DATE"), Texts::tr("as it was at the end of a day, YYYY-MM-DD")}};
    command.options += periodOptions(Texts::tr("as it was at the end of a fiscal period"));
    command.run = runTotals;
    return command;
}

Command historyCommand()
{
    Command command;
    command.name = u"history"_s;
    command.summary = Texts::tr("every movement of stock, latest period first, as CSV");
    command.options = csvOptions() << filterOption() << standbyOption();
    command.run = runHistory;
    return command;
}

Command listCommand()
{
    Command command;
    command.name = u"list"_s;
    command.words = u"KIND"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("a list of master records or documents as CSV, all fields");
    command.details = Texts::tr("KIND: %1").arg(namesOf(listKinds()));
    command.options = csvOptions() << filterOption() << standbyOption();
    command.options +=
        {u"for-import"_s,
         {},
         Texts::tr("the columns that 'import' takes, with numbers and names in place of keys; of documents "
                   "all lines")};
    command.run = runList;
    return command;
}

} // namespace Tallymere::Cli
