#include "reports/reportquery.h"

#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/namedparameters.h"
#include "reports/datasetrows.h"

#include <algorithm>
#include <QMap>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Choices = QMap<QString, int>; // by their names in conditions; 0: not chosen

QString conditionLine(const QStringList &conditions, const Choices &choices)
{
    QStringList given;
    for (const QString &condition : conditions) {
        const QStringList names = Engine::positional(condition).names;
        if (std::ranges::all_of(names, [&](const QString &name) { return choices.value(name, -1) != 0; }))
            given.append(condition);
    }
    return given.isEmpty() ? QString() : "WHERE ("_L1 + given.join(") AND ("_L1) + ')'_L1;
}

QString orderLine(const QStringList &order, const Engine::Dialect &dialect)
{
    QStringList terms;
    for (const QString &column : order)
        terms.append(dialect.orderTerm(column, false, false));
    return "ORDER BY "_L1 + terms.join(", "_L1);
}

} // namespace

ReportDescription::Rows queryRows(const ReportQuery &parts)
{
    return [parts](Engine::Database &database, const ReportDescription &report, const ReportSelection &selection) {
        std::unique_ptr<Engine::Query> query = openReportQuery(database, parts, selection);
        Engine::Query &set = *query;
        return std::make_unique<DataSetRows<Engine::Query>>(std::move(query), set, report.layout);
    };
}

std::unique_ptr<Engine::Query> openReportQuery(Engine::Database &database, const ReportQuery &parts,
                                               const ReportSelection &selection)
{
    const Choices choices{{u"Location"_s, selection.warehouseId},
                          {u"ItemType"_s, selection.itemTypeId},
                          {u"Period"_s, selection.period},
                          {u"Year"_s, selection.year}};
    auto query = std::make_unique<Engine::Query>(database);
    QStringList lines{"SELECT "_L1 + parts.select, "FROM "_L1 + parts.from,
                      conditionLine(parts.conditions, choices)};
    if (!parts.groupBy.isEmpty())
        lines.append("GROUP BY "_L1 + parts.groupBy);
    if (parts.keys.isEmpty())
        lines.append(orderLine(parts.order, database.connection().dialect()));
    query->setKeyFields(parts.keys);
    query->setOrderBy(parts.keys.isEmpty() ? QString() : parts.order.join(u';'));
    query->setSql(lines.join(u'\n'));
    for (auto choice = choices.begin(); choice != choices.end(); ++choice)
        query->setParameter(choice.key(), choice.value());
    query->open();
    return query;
}

} // namespace Tallymere
