#include "reports/balancequery.h"
#include "reports/columns.h"
#include "reports/perpetualrows.h"
#include "reports/reportfields.h"
#include "reports/reportlist.h"
#include "reports/texts.h"

using namespace Qt::StringLiterals;
using Tallymere::Printing::Column;
using Tallymere::Printing::Group;
using Tallymere::Printing::TotalOf;

namespace Tallymere::ReportList {

namespace {

// --- what the reports have alike -----------------------------------------------------------------------------------

const QString item = u"I.ItemNo, I.ItemDescription"_s;
const QString itemAndType = item + u", I.ItemTypeID, T.TypeName"_s;

// The opening row names the account: the item, or below its heading the location.
QList<Column> movementColumns(bool byLocation)
{
    Column number = Columns::itemNo();
    number.inDetail = false;
    number.opening.field = byLocation ? Fields::WarehouseName : number.field;
    Column description = Columns::description();
    description.width = 2.2;
    description.inDetail = false;
    if (!byLocation)
        description.opening.field = description.field;
    Column about = Columns::text(Fields::TransDescription, ReportsTexts::tr("Description"), 2.9);
    about.opening.text = ReportsTexts::tr("Opening Balance:");
    Column balance = Columns::quantity(ReportFields::Balance, ReportsTexts::tr("Balance"));
    balance.opening.field = balance.field;
    return {number,
            description,
            Columns::text(Fields::TransTypeName, ReportsTexts::tr("Type"), 1.2),
            Columns::date(Fields::TransDate, ReportsTexts::tr("Date")),
            about,
            Columns::quantity(Fields::Quantity),
            balance};
}

QList<Column> summaryColumns()
{
    QList<Column> columns{Columns::itemNo(),
                          Columns::description(),
                          Columns::quantity(ReportFields::OpeningBalance, ReportsTexts::tr("Opening Balance")),
                          Columns::quantity(ReportFields::Receipts, ReportsTexts::tr("Receipts")),
                          Columns::quantity(ReportFields::Adjustments, ReportsTexts::tr("Adjustments")),
                          Columns::quantity(ReportFields::Sales, ReportsTexts::tr("Sales")),
                          Columns::quantity(ReportFields::ClosingBalance, ReportsTexts::tr("Closing Balance"))};
    columns[0].width = 1.2;
    columns[1].width = 3.4;
    for (qsizetype i = 2; i < columns.size(); ++i)
        columns[i].width = 1.3; // for the longest title
    return columns;
}

Group itemGroup() { return {Fields::ItemID, {Fields::ItemNo, Fields::ItemDescription}}; }
Group itemGroupWithTotal()
{
    Group group = itemGroup();
    group.heading = true;
    group.totalText = ReportsTexts::tr("Closing balance %1");
    return group;
}
Group locationGroup() { return {Fields::WarehouseID, {Fields::WarehouseName}}; }

ReportDescription perpetualReport(const QString &name, const QString &listText, const QString &title)
{
    ReportDescription report;
    report.name = name;
    report.listText = listText;
    report.inWizard = true;
    report.parameters.period = true;
    report.layout.title = title;
    return report;
}

// --- the reports ---------------------------------------------------------------------------------------------------

ReportDescription byItem()
{
    ReportDescription report = perpetualReport(u"TrptPerpetualByItem"_s, ReportsTexts::tr("Perpetual by Item"),
                                               ReportsTexts::tr("Perpetual Inventory by Item"));
    report.parameters = {.location = true, .itemType = true, .period = true};
    report.rows = perpetualRows(BalanceQueries::byItem(item));
    report.layout.columns = movementColumns(false);
    report.layout.groups = {itemGroup()};
    return report;
}

ReportDescription byItemWhse()
{
    ReportDescription report =
        perpetualReport(u"TrptPerpetualByItemWhse"_s, ReportsTexts::tr("Perpetual by Item /Location"),
                        ReportsTexts::tr("Perpetual Inventory by Item /Location"));
    report.parameters.itemType = true;
    report.rows = perpetualRows(BalanceQueries::byLocation(item));
    report.layout.columns = movementColumns(true);
    report.layout.groups = {itemGroupWithTotal(), locationGroup()};
    report.layout.totals = {{ReportFields::Balance, TotalOf::Closing}};
    return report;
}

ReportDescription byTypeItem()
{
    ReportDescription report =
        perpetualReport(u"TrptPerpetualByTypeItem"_s, ReportsTexts::tr("Perpetual by Type /Item"),
                        ReportsTexts::tr("Perpetual Inventory by Type /Item"));
    report.parameters.location = true;
    report.rows = perpetualRows(
        BalanceQueries::byItem(itemAndType, BalanceQueries::withTypes(), {u"T.TypeName"_s, u"I.ItemTypeID"_s}));
    report.layout.columns = movementColumns(false);
    report.layout.groups = {typeGroup(ReportsTexts::tr("Closing balance %1")), itemGroup()};
    report.layout.totals = {{ReportFields::Balance, TotalOf::Closing}};
    return report;
}

ReportDescription byTypeItemWhse()
{
    ReportDescription report =
        perpetualReport(u"TrptPerpetualByTypeItemWhse"_s, ReportsTexts::tr("Perpetual by Type /Item /Location"),
                        ReportsTexts::tr("Perpetual Inventory by Type /Item /Location"));
    report.rows = perpetualRows(
        BalanceQueries::byLocation(itemAndType, BalanceQueries::withTypes(), {u"TypeName"_s, u"ItemTypeID"_s}));
    report.layout.columns = movementColumns(true);
    report.layout.groups = {typeGroup(ReportsTexts::tr("Closing balance %1")), itemGroupWithTotal(),
                            locationGroup()};
    report.layout.totals = {{ReportFields::Balance, TotalOf::Closing}};
    return report;
}

ReportDescription summaryByItem()
{
    ReportDescription report =
        perpetualReport(u"TrptPerpetualSummaryByItem"_s, ReportsTexts::tr("Perpetual Summary by Item"),
                        ReportsTexts::tr("Perpetual Inventory Summary by Item"));
    report.parameters = {.location = true, .itemType = true, .period = true};
    report.rows = perpetualSummaryRows(BalanceQueries::byItem(item));
    report.layout.columns = summaryColumns();
    return report;
}

ReportDescription summaryByTypeItem()
{
    ReportDescription report =
        perpetualReport(u"TrptPerpetualSummaryByTypeItem"_s, ReportsTexts::tr("Perpetual Summary by Type /Item"),
                        ReportsTexts::tr("Perpetual Inventory Summary by Type /Item"));
    report.parameters.location = true;
    report.rows = perpetualSummaryRows(
        BalanceQueries::byItem(itemAndType, BalanceQueries::withTypes(), {u"T.TypeName"_s, u"I.ItemTypeID"_s}));
    report.layout.columns = summaryColumns();
    report.layout.groups = {typeGroup(ReportsTexts::tr("Total %1"))};
    for (qsizetype i = 2; i < report.layout.columns.size(); ++i)
        report.layout.totals.append({report.layout.columns[i].field, TotalOf::Quantities});
    return report;
}

} // namespace

QList<ReportDescription> perpetualReports()
{
    return {byItem(), byItemWhse(), byTypeItem(), byTypeItemWhse(), summaryByItem(), summaryByTypeItem()};
}

} // namespace Tallymere::ReportList
