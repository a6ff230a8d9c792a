#include "base/formats.h"
#include "reports/balancequery.h"
#include "reports/columns.h"
#include "reports/reportfields.h"
#include "reports/reportlist.h"
#include "reports/texts.h"
#include "reports/valuerows.h"

using namespace Qt::StringLiterals;
using Tallymere::Printing::Column;
using Tallymere::Printing::Group;
using Tallymere::Printing::TotalOf;

namespace Tallymere::ReportList {

namespace {

// --- what the reports have alike -----------------------------------------------------------------------------------

const QString itemCosts = u"I.ItemNo, I.ItemDescription, I.ItemTypeID, I.StandardCost, I.WgtAvgCost"_s;
const QString withAccounts = u"LEFT OUTER JOIN GLAccnt G ON I.InventoryGLAccountID = G.GLAccountID "_s;

QList<Column> itemColumns()
{
    return {Columns::itemNo(), Columns::description(), Columns::quantity(ReportFields::ItemQtyOnHand),
            Columns::unitCost(), Columns::amount(ReportFields::ItemValue, ReportsTexts::tr("Value"))};
}

QList<Column> balanceColumns()
{
    return {Columns::location(), Columns::quantity(Fields::QtyOnHand), Columns::unitCost(),
            Columns::amount(ReportFields::ItemWhseValue, ReportsTexts::tr("Value"))};
}

Group itemGroup()
{
    return {Fields::ItemID, {Fields::ItemNo, Fields::ItemDescription}, true, ReportsTexts::tr("Total %1")};
}

ReportDescription valueReport(const QString &name, const QString &listText,
                              ReportDescription::Parameters parameters)
{
    ReportDescription report;
    report.name = name;
    report.listText = listText;
    report.inWizard = true;
    report.parameters = parameters;
    report.layout.title = ReportsTexts::tr("Inventory %1").arg(listText);
    report.layout.totals = {{ReportFields::ItemValue, TotalOf::Amounts}};
    report.layout.reportTotalText = ReportsTexts::tr("Total");
    return report;
}

// --- the reports ---------------------------------------------------------------------------------------------------

ReportDescription byItem()
{
    ReportDescription report =
        valueReport(u"TrptValueByItem"_s, ReportsTexts::tr("Value by Item"), {.location = true, .itemType = true});
    report.rows = valueRows(BalanceQueries::byItem(itemCosts));
    report.layout.columns = itemColumns();
    return report;
}

ReportDescription byItemWhse()
{
    ReportDescription report =
        valueReport(u"TrptValueByItemWhse"_s, ReportsTexts::tr("Value by Item /Location"), {.itemType = true});
    report.rows = valueRows(BalanceQueries::byLocation(itemCosts));
    report.layout.columns = balanceColumns();
    report.layout.groups = {itemGroup()};
    report.layout.totals = {{Fields::QtyOnHand, TotalOf::Quantities, false},
                            {ReportFields::ItemWhseValue, TotalOf::Amounts}};
    return report;
}

ReportDescription byTypeItem()
{
    ReportDescription report =
        valueReport(u"TrptValueByTypeItem"_s, ReportsTexts::tr("Value by Type /Item"), {.location = true});
    report.rows = valueRows(BalanceQueries::byItem(itemCosts + u", T.TypeName"_s, BalanceQueries::withTypes(),
                                                   {u"T.TypeName"_s, u"I.ItemTypeID"_s}));
    report.layout.columns = itemColumns();
    report.layout.groups = {typeGroup(ReportsTexts::tr("Total %1"))};
    return report;
}

// Only what the types sum up to is printed.
ReportDescription byType()
{
    ReportDescription report = byTypeItem();
    report.name = u"TrptValueByType"_s;
    report.listText = ReportsTexts::tr("Value by Type");
    report.layout.title = ReportsTexts::tr("Inventory Value by Type");
    report.layout.columns = {Columns::text(Fields::TypeName, ReportsTexts::tr("Item Type"), 4),
                             Columns::amount(ReportFields::ItemValue, ReportsTexts::tr("Value"))};
    report.layout.groups = {typeGroup(u"%1"_s, false)};
    report.layout.details = false;
    return report;
}

ReportDescription byTypeItemWhse()
{
    ReportDescription report =
        valueReport(u"TrptValueByTypeItemWhse"_s, ReportsTexts::tr("Value by Type /Item /Location"), {});
    report.rows = valueRows(BalanceQueries::byLocation(itemCosts + u", T.TypeName"_s, BalanceQueries::withTypes(),
                                                       {u"TypeName"_s, u"ItemTypeID"_s}));
    report.layout.columns = balanceColumns();
    report.layout.groups = {typeGroup(ReportsTexts::tr("Total %1")), itemGroup()};
    report.layout.totals = {{ReportFields::ItemWhseValue, TotalOf::Amounts}};
    return report;
}

ReportDescription byGLAccountItem()
{
    ReportDescription report = valueReport(u"TrptValueByGLAccountItem"_s,
                                           ReportsTexts::tr("Value by GL Account /Item"), {.location = true});
    report.rows = valueRows(BalanceQueries::byItem(
        itemCosts + u", I.InventoryGLAccountID, T.CostingMethod, G.GLAccount, G.AccountName"_s,
        BalanceQueries::withTypes() + withAccounts, {u"G.GLAccount"_s, u"I.InventoryGLAccountID"_s}));
    report.inWizard = false;
    report.layout.columns = itemColumns();
    report.layout.groups = {{.key = Fields::InventoryGLAccountID,
                             .fields = {Fields::GLAccount, Fields::AccountName},
                             .heading = true,
                             .totalText = ReportsTexts::tr("Total %1"),
                             .unnamed = ReportsTexts::tr("Account %1"),
                             .keyless = ReportsTexts::tr("No account")}};
    return report;
}

ReportDescription costPerMeal()
{
    ReportDescription report;
    report.listText = ReportsTexts::tr("Cost per Meal");
    report.inWizard = true;
    report.parameters.location = true;
    return report;
}

} // namespace

QList<ReportDescription> valueReports()
{
    return {byItem(), byItemWhse(), byType(), byTypeItem(), byTypeItemWhse(), byGLAccountItem(), costPerMeal()};
}

} // namespace Tallymere::ReportList
