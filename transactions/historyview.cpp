#include "transactions/historyview.h"

#include "base/formats.h"
#include "base/listfilter.h"
#include "data/transtypes.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;
using Engine::Value;

namespace Tallymere {

HistoryView::HistoryView(Engine::Database &database)
    : m_table(database, u"IHist"_s)
{
    m_table.setIndex(u"PERIODDATEDESC"_s);
    m_table.addCalculated(u"Periodppyyyy"_s, FieldType::Text, 8, [](const Engine::DataSet &row) {
        return Value(periodText(row.integer(u"GLPeriod"), row.integer(u"GLYear")));
    });
    m_table.addLookup(u"ItemNo"_s, FieldType::Text, 20, {u"ItemID"_s, u"Item"_s, u"ItemID"_s, u"ItemNo"_s});
    m_table.addLookup(u"ItemDescription"_s, FieldType::Text, 40,
                      {u"ItemID"_s, u"Item"_s, u"ItemID"_s, u"ItemDescription"_s});
    m_table.addLookup(u"WarehouseName"_s, FieldType::Text, 50,
                      {u"WarehouseID"_s, u"Warehse"_s, u"WarehouseID"_s, u"WarehouseName"_s});
    m_table.addCalculated(u"TransTypeName"_s, FieldType::Text, 12, [](const Engine::DataSet &row) {
        return Value(transTypeText(row.integer(u"TransType")));
    });
}

void HistoryView::open()
{
    m_table.open();
    m_table.field(u"TransType").format.display = [](const Value &type) { return transTypeText(type.toInt()); };
    m_table.field(u"TransDate").format = dateFormat();
    m_table.field(u"Quantity").format = quantityFormat();
    m_table.field(u"UnitCost").format = currencyFormat();
}

QString HistoryView::filterExpression(const Filter &filter)
{
    return keyConditions({{u"ItemID"_s, filter.itemId},
                          {u"WarehouseID"_s, filter.warehouseId},
                          {u"TransType"_s, filter.type},
                          {u"GLYear"_s, filter.year},
                          {u"GLPeriod"_s, filter.period}});
}

HistoryView::Source HistoryView::source() const
{
    const Source made = document();
    return made.kind && made.kind->entry.opensFromHistory ? made : Source();
}

HistoryView::Source HistoryView::document() const
{
    const int type = m_table.integer(u"TransType");
    for (const DocumentKind *kind : DocumentKinds::all()) {
        if (static_cast<int>(kind->posting.transType) != type)
            continue;
        const Value key = m_table.value(kind->keyField);
        return key.isNull() ? Source() : Source{kind, key.toInt()};
    }
    return {};
}

} // namespace Tallymere
