#include "base/listfilter.h"
#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "insight/stockasofview.h"
#include "insight/whattobuy.h"
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
    const QString location = keyCondition(Fields::WarehouseID, selection.warehouseId);
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
    report.layout.columns = {Columns::itemNo(), Columns::description(),
                             Columns::quantity(StockAsOfView::QtyThen, ReportsTexts::tr("Quantity then")),
                             Columns::amount(StockAsOfView::ValueThen, ReportsTexts::tr("At today's cost"))};
    report.layout.groups = {{.key = Fields::WarehouseID,
                             .fields = {Fields::WarehouseName},
                             .heading = true,
                             .totalText = ReportsTexts::tr("Total %1"),
                             .unnamed = ReportsTexts::tr("Location %1"),
                             .keyless = ReportsTexts::tr("No location")}};
    report.layout.totals = {{StockAsOfView::ValueThen, Printing::TotalOf::Amounts}};
    report.layout.reportTotalText = ReportsTexts::tr("Total");
    return report;
}

// --- what to buy ---------------------------------------------------------------------------------------------------

BuyingPlan planOf(QDate today, const ReportSelection &selection)
{
    BuyingPlan plan{.today = today, .location = selection.warehouseId, .alsoInStock = selection.alsoInStock};
    if (selection.weeksOfUse > 0)
        plan.weeks = selection.weeksOfUse;
    if (selection.weeksOfCover > 0)
        plan.cover = selection.weeksOfCover;
    return plan;
}

class BuyingRows final : public Printing::RowReader
{
public:
    explicit BuyingRows(std::vector<ItemToBuy> items)
        : m_items(std::move(items))
    {
    }

    static QStringList names()
    {
        return {Fields::VendorID,        Fields::VendorNo,         Fields::VendorName,    Fields::ItemNo,
                Fields::ItemDescription, BuyingFields::UsePerWeek, Fields::QtyOnHand,     BuyingFields::Unposted,
                BuyingFields::DaysLeft,  BuyingFields::Proposed,   BuyingFields::LastCost};
    }

    const QStringList &fields() const override { return m_fields; }

    bool next(Printing::ReportRow &row) override
    {
        if (m_next >= m_items.size())
            return false;
        const ItemToBuy &item = m_items[m_next++];
        row.kind = Printing::RowKind::Detail;
        row.values = {item.vendor > 0 ? Engine::Value(item.vendor) : Engine::Value(),
                      item.vendorNo,
                      item.vendorName,
                      item.itemNo,
                      item.description,
                      item.usePerWeek,
                      item.onHand,
                      item.unposted,
                      item.daysLeft,
                      item.proposed,
                      item.lastCost ? Engine::Value(*item.lastCost) : Engine::Value()};
        return true;
    }

private:
    const std::vector<ItemToBuy> m_items;
    const QStringList m_fields = names();
    size_t m_next = 0;
};

QStringList planHeading(Engine::Database &, const ReportSelection &selection)
{
    const BuyingPlan plan = planOf({}, selection);
    return {ReportsTexts::tr("By the use of %1 weeks, to last %2 weeks").arg(plan.weeks).arg(plan.cover)};
}

ReportDescription whatToBuyReport()
{
    ReportDescription report;
    report.name = u"TrptWhatToBuy"_s;
    report.listText = ReportsTexts::tr("What to buy");
    report.parameters = {.location = true, .buying = true};
    report.rows = [](Engine::Database &database, const ReportDescription &, const ReportSelection &selection) {
        return std::make_unique<BuyingRows>(
            whatToBuy(database.connection(), planOf(database.session().today(), selection)));
    };
    report.notes = planHeading;
    report.layout.title = ReportsTexts::tr("What to buy");
    report.layout.columns = {Columns::itemNo(),
                             Columns::description(),
                             Columns::quantity(BuyingFields::UsePerWeek, ReportsTexts::tr("Use a week")),
                             Columns::quantity(Fields::QtyOnHand, ReportsTexts::tr("On hand")),
                             Columns::quantity(BuyingFields::Unposted, ReportsTexts::tr("Unposted")),
                             Columns::quantity(BuyingFields::DaysLeft, ReportsTexts::tr("Days left")),
                             Columns::quantity(BuyingFields::Proposed, ReportsTexts::tr("Proposed")),
                             Columns::unitCost(BuyingFields::LastCost, ReportsTexts::tr("Last cost"))};
    report.layout.groups = {{.key = Fields::VendorID,
                             .fields = {Fields::VendorName, Fields::VendorNo},
                             .heading = true,
                             .keyless = ReportsTexts::tr("No vendor yet")}};
    report.layout.landscape = true;
    return report;
}

} // namespace

QList<ReportDescription> stockReports() { return {stockAsOf(), whatToBuyReport()}; }

} // namespace Tallymere::ReportList
