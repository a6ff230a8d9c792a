#include "insight/stockasofview.h"

#include "base/formats.h"
#include "data/fields.h"
#include "engine/store/database.h"

namespace Tallymere {

StockAsOfView::StockAsOfView(Engine::Database &database)
    : m_totals(database, TotalsView::Figures::Value)
{
    query().addCalculated(QtyThen, [this](const Engine::DataSet &row) { return Engine::Value(then(row)); });
    query().addCalculated(ValueThen,
                          [this](const Engine::DataSet &row) { return TotalsView::valueOf(row, then(row)); });
}

double StockAsOfView::then(const Engine::DataSet &row) const
{
    return quantityThen(row.integer(Fields::ItemID), row.integer(Fields::WarehouseID));
}

double StockAsOfView::quantityThen(int item, int location) const
{
    return m_stock ? m_stock->onHand(item, location) : 0;
}

void StockAsOfView::setTime(const StockTime &time)
{
    m_stock.emplace(query().database(), time);
    m_time = time;
}

void StockAsOfView::setTimeWithinMoment(const StockTime &time)
{
    m_stock.emplace(query().database().connection(), time);
    m_time = time;
}

void StockAsOfView::open()
{
    m_totals.open();
    query().field(QtyThen).format = quantityFormat();
    query().field(ValueThen).format = currencyFormat();
}

} // namespace Tallymere
