#include "reports/valuerows.h"

#include "base/rounding.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/records/rowstream.h"
#include "engine/store/database.h"
#include "engine/values/amounttoolarge.h"
#include "master/costing.h"
#include "reports/fieldmap.h"
#include "reports/reportfields.h"
#include "reports/texts.h"

#include <QHash>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

// By the keys of item types.
QHash<int, CostingMethod> readCostingMethods(Engine::Database &database)
{
    Engine::Query types(database, u"SELECT ItemTypeID, CostingMethod FROM ItemType"_s);
    QHash<int, CostingMethod> methods;
    for (types.open(); !types.atEnd(); types.next())
        methods.insert(types.integer(Fields::ItemTypeID), costingMethodOf(types.integer(Fields::CostingMethod)));
    return methods;
}

class ValueRows final : public Printing::RowReader
{
public:
    ValueRows(Engine::Database &database, std::unique_ptr<Engine::Query> balances,
              const Printing::ReportLayout &layout)
        : m_balances(std::move(balances))
        , m_query(*m_balances)
        , m_map(layout, m_query)
        , m_byLocation(m_query.fieldIndex(Fields::QtyOnHand) >= 0)
        , m_quantity(m_query.fieldIndex(m_byLocation ? Fields::QtyOnHand : ReportFields::ItemQtyOnHand))
        , m_standardCost(m_query.fieldIndex(Fields::StandardCost))
        , m_averageCost(m_query.fieldIndex(Fields::WgtAvgCost))
        , m_itemType(m_query.fieldIndex(Fields::ItemTypeID))
        , m_method(m_query.fieldIndex(Fields::CostingMethod))
        , m_unitCostAt(m_map.names().indexOf(QStringView(Fields::UnitCost)))
        , m_valueAt(m_map.indexOf(m_byLocation ? ReportFields::ItemWhseValue : ReportFields::ItemValue))
        , m_rows(m_query)
    {
        if (m_method < 0)
            m_methods = readCostingMethods(database);
    }

    const QStringList &fields() const override { return m_map.names(); }

    bool next(Printing::ReportRow &row) override
    {
        if (!m_rows.next(m_balance))
            return false;
        m_map.take(m_query, m_balance, row.values);
        const Money cost = unitCost(m_balance);
        if (m_unitCostAt >= 0)
            row.values[static_cast<size_t>(m_unitCostAt)] = cost;
        row.values[m_valueAt] = valueOf(m_balance, cost);
        return true;
    }

private:
    Money unitCost(const Engine::Row &balance) const
    {
        const CostingMethod method = m_method >= 0 ? costingMethodOf(m_query.valueIn(balance, m_method).toInt64())
                                                   : m_methods.value(m_query.valueIn(balance, m_itemType).toInt());
        return unitValue(method, m_query.valueIn(balance, m_averageCost), m_query.valueIn(balance, m_standardCost));
    }

    Money valueOf(const Engine::Row &balance, Money cost) const
    {
        try {
            return amountOf(m_query.valueIn(balance, m_quantity).toDouble(), cost);
        } catch (const Engine::AmountTooLarge &) {
            throw RuleError(ReportsTexts::tr("The value of item '%1' is beyond what an amount of money can be")
                                .arg(m_query.valueIn(balance, m_query.fieldIndex(Fields::ItemNo)).toText()));
        }
    }

    const std::unique_ptr<Engine::Query> m_balances;
    Engine::Query &m_query;
    FieldMap m_map;
    bool m_byLocation;
    int m_quantity;
    int m_standardCost;
    int m_averageCost;
    int m_itemType;
    int m_method; // -1: looked up by the item's type
    qsizetype m_unitCostAt; // -1: not shown
    size_t m_valueAt;
    QHash<int, CostingMethod> m_methods;
    Engine::RowStream m_rows;
    Engine::Row m_balance; // in hand
};

} // namespace

ReportDescription::Rows valueRows(const ReportQuery &balances)
{
    return [balances](Engine::Database &database, const ReportDescription &report,
                      const ReportSelection &selection) {
        return std::make_unique<ValueRows>(database, openReportQuery(database, balances, selection), report.layout);
    };
}

} // namespace Tallymere
