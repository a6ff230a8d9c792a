#include "base/formats.h"
#include "engine/store/database.h"
#include "insight/costtrail.h"
#include "reports/columns.h"
#include "reports/reportlist.h"
#include "reports/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::ReportList {

namespace {

class TrailRows final : public Printing::RowReader
{
public:
    TrailRows(CostTrail trail, QStringList fields)
        : m_trail(std::move(trail))
        , m_fields(std::move(fields))
    {
    }

    const QStringList &fields() const override { return m_fields; }

    bool next(Printing::ReportRow &row) override
    {
        if (m_next >= m_trail.steps.size())
            return false;
        const CostStep &step = m_trail.steps[m_next++];
        const auto cost = [](const std::optional<Engine::Money> &money) {
            return money ? Engine::Value(*money) : Engine::Value();
        };
        // In the order of the columns.
        row.values = {
            step.date,         step.description,         step.location,    step.received,          step.unitCost,
            step.onHandBefore, cost(step.averageBefore), step.onHandAfter, cost(step.averageAfter)};
        return true;
    }

private:
    const CostTrail m_trail;
    const QStringList m_fields;
    size_t m_next = 0;
};

// The report is of one moment already.
Printing::RowReaderPtr trailRows(Engine::Database &database, const ReportDescription &report,
                                 const ReportSelection &selection)
{
    return std::make_unique<TrailRows>(costTrail(database.connection(), selection.itemId),
                                       report.layout.usedFields());
}

QStringList trailHeadings(Engine::Database &database, const ReportSelection &selection)
{
    const CostTrail trail = costTrail(database.connection(), selection.itemId);
    return {trail.item, ReportsTexts::tr("%1. Average cost: %2").arg(trail.verdict(), currencyText(trail.stored))};
}

} // namespace

QList<ReportDescription> costReports()
{
    ReportDescription report;
    report.name = u"TrptCostTrail"_s;
    report.listText = ReportsTexts::tr("Why This Cost");
    report.parameters = {.item = true};
    report.rows = trailRows;
    report.notes = trailHeadings;
    report.layout.title = ReportsTexts::tr("Why This Cost");
    report.layout.landscape = true;
    report.layout.columns = {Columns::date(Fields::TransDate, ReportsTexts::tr("Date")),
                             Columns::text(Fields::TransDescription, ReportsTexts::tr("Receipt"), 3),
                             Columns::location(),
                             Columns::quantity(Fields::Quantity, ReportsTexts::tr("Received")),
                             Columns::unitCost(),
                             Columns::quantity(TrailFields::OnHandBefore, ReportsTexts::tr("On hand before")),
                             Columns::unitCost(TrailFields::AverageBefore, ReportsTexts::tr("Cost before")),
                             Columns::quantity(TrailFields::OnHandAfter, ReportsTexts::tr("On hand after")),
                             Columns::unitCost(TrailFields::AverageAfter, ReportsTexts::tr("Cost after"))};
    return {report};
}

} // namespace Tallymere::ReportList
