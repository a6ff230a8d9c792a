#pragma once

#include "engine/records/query.h"
#include "engine/values/fieldname.h"

#include <QDate>
#include <QString>

namespace Tallymere {

// The quantity on hand of every item at every location. A balance whose item or location has been removed shows
// with empty names.
class TotalsView
{
public:
    enum class Sort { ItemNo, Description };
    // What is told beside the quantity. All cost a look into the history for each row that is shown, and a filter may name
    // those of them that are stored.
    enum class Figures { OnHand, Value, All };

    explicit TotalsView(Engine::Database &database, Figures figures = Figures::OnHand);

    // The further figures: what is on hand at what the item's type values it at, to the cent, as the value reports have it
    // (nothing where that is beyond an amount of money); the day of the latest movement; the day of the latest count, as
    // far as that is known (see rememberCounted).
    static constexpr Engine::FieldName<Engine::FieldType::Money> Value{u"Value"};
    static constexpr Engine::FieldName<Engine::FieldType::Date> LastMoved{u"LastMoved"};
    static constexpr Engine::FieldName<Engine::FieldType::Date> LastCounted{u"LastCounted"};
    // Another quantity of a row at the same cost.
    static Engine::Value valueOf(const Engine::DataSet &row, double quantity);

    // ItemID, WarehouseID, QtyOnHand, ItemNo, ItemDescription, WarehouseName, and the further figures.
    Engine::Query &query() { return m_query; }
    void open();

    Sort sort() const { return m_sort; }
    void setSort(Sort sort);

    // What the list can be narrowed to.
    struct Filter
    {
        enum class Stock { Any, BelowZero, Zero };

        int itemId = 0; // 0: any
        int warehouseId = 0;
        Stock stock = Stock::Any;
        QDate notMovedSince{}; // on that day or later; null: whenever it has moved
    };
    static QString filterExpression(const Filter &filter); // empty: everything shows
    static QString belowZero(); // the filter expression, and a condition
    // What a filter needs that somebody has written.
    static Figures figuresFor(const QString &filter) { return filter.isEmpty() ? Figures::OnHand : Figures::All; }

private:
    Engine::Query m_query;
    const Figures m_figures;
    Sort m_sort = Sort::ItemNo;
};

} // namespace Tallymere
