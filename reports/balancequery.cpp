#include "reports/balancequery.h"

#include "base/listfilter.h"
#include "engine/database.h"
#include "engine/dialect.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString conditionLine(const ReportSelection &selection)
{
    const QString condition =
        keyConditions({{u"WarehouseID"_s, selection.warehouseId}, {u"ItemTypeID"_s, selection.itemTypeId}});
    return condition.isEmpty() ? QString() : u"WHERE "_s + condition;
}

namespace {
const QString fromItems = u"FROM IBalance B LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID "_s;
} // namespace

QStringList BalanceLines::byItem(const QString &columns, const QString &joins)
{
    return {u"SELECT B.ItemID, Sum(B.QtyOnHand) ItemQtyOnHand, "_s + columns,
            fromItems + joins,
            {},
            u"GROUP BY B.ItemID, "_s + columns};
}

QStringList BalanceLines::byLocation(const QString &columns, const QString &joins)
{
    return {u"SELECT B.ItemID, B.WarehouseID, B.QtyOnHand, W.WarehouseName, "_s + columns,
            fromItems + joins + "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID "_L1,
            {}};
}

QString BalanceLines::withTypes() { return u"LEFT OUTER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID "_s; }

BalanceQuery::BalanceQuery(Engine::Database &database, const ReportDescription &report,
                           const ReportSelection &selection)
    : m_query(database)
{
    constexpr qsizetype conditionAt = 2;
    QStringList lines = report.query;
    lines[conditionAt] = conditionLine(selection);
    if (report.keyFields.isEmpty()) {
        QStringList terms;
        for (const QString &column : report.order)
            terms.append(database.connection().dialect().orderTerm(column, false, false));
        lines.append(u"ORDER BY "_s + terms.join(u", "_s));
    } else {
        m_query.setKeyFields(report.keyFields);
        m_query.setOrderBy(report.order.join(u';'));
    }
    m_query.setSql(lines.join(u'\n'));
    m_query.open();
}

} // namespace Tallymere
