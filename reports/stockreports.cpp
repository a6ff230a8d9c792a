#include "base/listfilter.h"
#include "insight/stockasofview.h"
#include "reports/columns.h"
#include "reports/datasetrows.h"
#include "reports/reportlist.h"
#include "reports/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::ReportList {

namespace {

StockTime timeOf(const ReportSelection &selection)
{
    return {.day = selection.day, .year = selection.year, .period = selection.period};
}

// By locations, whatever the list's order is. The report is of one moment already.
Printing::RowReaderPtr stockThen(Engine::Database &database, const ReportDescription &report,
                                 const ReportSelection &selection)
{
    auto view = std::make_unique<StockAsOfView>(database);
    view->setTimeWithinMoment(timeOf(selection));
    Engine::Query &query = view->query();
    query.setOrderBy(u"WarehouseName;WarehouseID;"_s
                     + (selection.order.isEmpty() ? u"ItemNo"_s : selection.order.section(u';', 0, 0)));
    view->open();
    const QString location = keyCondition(u"WarehouseID"_s, selection.warehouseId);
    if (const QString filter = joinConditions({selection.filter, location}); !filter.isEmpty()) {
        query.setFilter(filter);
        query.setFiltered(true);
    }
    return std::make_unique<DataSetRows<StockAsOfView>>(std::move(view), query, report.layout);
}

QStringList timeHeading(Engine::Database &, const ReportSelection &selection)
{
    return {ReportsTexts::tr("As of %1").arg(timeOf(selection).text()),
            ReportsTexts::tr("The value is that of the quantity then at what a unit costs now.")};
}

ReportDescription stockAsOf()
{
    ReportDescription report;
    report.name = u"TrptStockAsOf"_s;
    report.listText = ReportsTexts::tr("Stock as of");
    report.parameters = {.location = true, .period = true, .day = true};
    report.rows = stockThen;
    report.notes = timeHeading;
    report.layout.title = ReportsTexts::tr("Stock as of");
    report.layout.columns = {
        Columns::itemNo(), Columns::description(),
        Columns::quantity(StockAsOfView::QtyThen.toString(), ReportsTexts::tr("Quantity then")),
        Columns::amount(StockAsOfView::ValueThen.toString(), ReportsTexts::tr("At today's cost"))};
    report.layout.groups = {{.key = u"WarehouseID"_s,
                             .fields = {u"WarehouseName"_s},
                             .heading = true,
                             .totalText = ReportsTexts::tr("Total %1"),
                             .unnamed = ReportsTexts::tr("Location %1"),
                             .keyless = ReportsTexts::tr("No location")}};
    report.layout.totals = {{StockAsOfView::ValueThen.toString(), Printing::TotalOf::Amounts}};
    report.layout.reportTotalText = ReportsTexts::tr("Total");
    return report;
}

} // namespace

QList<ReportDescription> stockReports() { return {stockAsOf()}; }

} // namespace Tallymere::ReportList
