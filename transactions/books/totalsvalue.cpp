#include "transactions/books/totalsvalue.h"

#include "data/fields.h"
#include "engine/filter/filterexpression.h"
#include "engine/records/rowsource.h"
#include "engine/values/amounttoolarge.h"
#include "master/costing.h"

#include <algorithm>
#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

namespace {

constexpr qint64 partAtMost = 10; // ms

Engine::SqlCondition conditionOf(const Engine::Query &view, const QString &filter)
{
    const Engine::Dialect &dialect = view.database().connection().dialect();
    const Engine::FilterExpression expression(filter);
    return expression.condition(dialect, [&](QStringView name) -> std::optional<Engine::FilterExpression::Column> {
        const int index = view.fieldIndex(name);
        if (index < 0 || view.field(index).kind == Engine::FieldKind::Calculated)
            return std::nullopt;
        return Engine::FilterExpression::Column{Engine::columnOf(dialect, view.field(index)),
                                                view.field(index).type};
    });
}

qint64 outermostItem(Engine::Database &database, const QString &function)
{
    return Engine::singleValue(database, u"SELECT %1(ItemID) FROM IBalance"_s.arg(function)).toInt64();
}

} // namespace

TotalsValue::TotalsValue(Engine::Database &database, const QString &filter, Quantity quantity)
    : m_database(database)
    , m_expression(filter)
    , m_quantity(std::move(quantity))
{
    Engine::readAtMoment(database,
                         [this](std::unique_ptr<Engine::ReadMoment> moment) { begin(std::move(moment)); });
}

void TotalsValue::begin(std::unique_ptr<Engine::ReadMoment> moment)
{
    m_moment = std::move(moment);
    m_sum = Engine::Money();
    if (!isTold())
        return;
    const auto figures = m_expression.isEmpty() ? TotalsView::Figures::Value : TotalsView::Figures::All;
    TotalsView view(m_moment->database(), figures);
    view.open();
    m_filter = conditionOf(view.query(), m_expression);
    m_sql =
        u"SELECT t.QtyOnHand, t.CostingMethod, t.WgtAvgCost, t.StandardCost, t.ItemID, t.WarehouseID FROM (%1) t "
        "WHERE t.ItemID > ? AND t.ItemID <= ?"_s.arg(view.query().sql());
    if (!m_filter.isEmpty())
        m_sql += u" AND (%1)"_s.arg(m_filter.text);
    m_reached = outermostItem(m_moment->database(), u"min"_s) - 1;
    m_last = outermostItem(m_moment->database(), u"max"_s);
}

bool TotalsValue::readOn(qint64 milliseconds)
{
    try {
        return addUpOn(milliseconds);
    } catch (const Engine::EngineError &) {
        if (!m_moment->isOnStandby())
            throw;
    }
    begin(Engine::ReadMoment::insteadOfStandby(m_database));
    return true;
}

bool TotalsValue::addUpOn(qint64 milliseconds)
{
    if (!isTold())
        return false;
    QElapsedTimer all;
    all.start();
    while (m_reached < m_last && m_sum) {
        QElapsedTimer part;
        part.start();
        const qint64 upTo = std::min(m_reached + m_itemsAtOnce, m_last);
        addItems(upTo);
        m_reached = upTo;
        if (part.elapsed() < partAtMost / 2)
            m_itemsAtOnce *= 2;
        else if (part.elapsed() > partAtMost)
            m_itemsAtOnce = std::max<qint64>(1, m_itemsAtOnce / 2);
        if (m_reached < m_last && all.elapsed() >= milliseconds)
            return true;
    }
    m_moment->end();
    m_last = m_reached;
    return false;
}

void TotalsValue::addItems(qint64 last)
{
    const Engine::StatementPtr rows = m_moment->database().connection().prepare(m_sql);
    rows->bind(0, m_reached);
    rows->bind(1, last);
    Engine::bindAll(*rows, m_filter.parameters, 2);
    try {
        while (m_sum && rows->next()) {
            const double quantity = m_quantity
                ? m_quantity(static_cast<int>(rows->intAt(4)), static_cast<int>(rows->intAt(5)))
                : rows->doubleAt(0);
            const auto value = stockValue(quantity, costingMethodOf(rows->intAt(1)),
                                          rows->valueAt(2, FieldType::Money), rows->valueAt(3, FieldType::Money));
            if (value)
                m_sum = *m_sum + *value;
        }
    } catch (const Engine::AmountTooLarge &) {
        m_sum.reset();
    }
}

} // namespace Tallymere
