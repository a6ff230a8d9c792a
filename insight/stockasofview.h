#pragma once

#include "insight/stockasof.h"
#include "transactions/books/totalsview.h"

#include <optional>

namespace Tallymere {

// The totals as they were, as a list: every balance that there is now with its quantity then. A cost of the past is not
// kept for an item that left stock since, so the value is that of the quantity then at what a unit costs now.
class StockAsOfView
{
public:
    static constexpr Engine::FieldName<Engine::FieldType::Float> QtyThen{u"QtyThen"};
    static constexpr Engine::FieldName<Engine::FieldType::Money> ValueThen{u"ValueThen"};

    explicit StockAsOfView(Engine::Database &database);

    // The fields of TotalsView with its value, and the two above.
    Engine::Query &query() { return m_totals.query(); }
    void setSort(TotalsView::Sort sort) { m_totals.setSort(sort); }
    // Reads what came later; open() after it. The second reads within the moment of the list's own connection.
    void setTime(const StockTime &time);
    void setTimeWithinMoment(const StockTime &time);
    const StockTime &time() const { return m_time; }
    double quantityThen(int item, int location) const; // of a balance
    void open();

private:
    double then(const Engine::DataSet &row) const;

    TotalsView m_totals;
    StockTime m_time;
    std::optional<StockAsOf> m_stock;
};

} // namespace Tallymere
