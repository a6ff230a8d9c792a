#include "transactions/documents/historyview.h"

#include "base/formats.h"
#include "base/listfilter.h"
#include "data/fields.h"
#include "data/transtypes.h"
#include "transactions/books/periodfield.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

HistoryView::HistoryView(Engine::Database &database)
    : m_table(database, u"IHist"_s)
{
    m_table.setIndex(u"PERIODDATEDESC"_s);
    addPeriod(m_table);
    m_table.addLookup(Fields::ItemNo.sized(20), {Fields::ItemID, u"Item"_s, Fields::ItemID, Fields::ItemNo});
    m_table.addLookup(Fields::ItemDescription.sized(40),
                      {Fields::ItemID, u"Item"_s, Fields::ItemID, Fields::ItemDescription});
    m_table.addLookup(Fields::WarehouseName.sized(50),
                      {Fields::WarehouseID, u"Warehse"_s, Fields::WarehouseID, Fields::WarehouseName});
    m_table.addCalculated(
        Fields::TransTypeName.sized(12),
        [](const Engine::DataSet &row) { return Value(transTypeText(row.integer(Fields::TransType))); },
        Fields::TransType);
}

void HistoryView::open()
{
    m_table.open();
    m_table.field(Fields::TransType).format.display = [](const Value &type) { return transTypeText(type.toInt()); };
    m_table.field(Fields::TransDate).format = dateFormat();
    m_table.field(Fields::Quantity).format = quantityFormat();
    m_table.field(Fields::UnitCost).format = currencyFormat();
}

QString HistoryView::filterExpression(const Filter &filter)
{
    return keyConditions({{Fields::ItemID, filter.itemId},
                          {Fields::WarehouseID, filter.warehouseId},
                          {Fields::TransType, filter.type},
                          {Fields::GLYear, filter.year},
                          {Fields::GLPeriod, filter.period}});
}

HistoryView::Source HistoryView::source() const
{
    const Source made = document();
    return made.kind && made.kind->entry.opensFromHistory ? made : Source();
}

HistoryView::Source HistoryView::document() const
{
    const int type = m_table.integer(Fields::TransType);
    for (const DocumentKind *kind : DocumentKinds::all()) {
        if (static_cast<int>(kind->posting.transType) != type)
            continue;
        const Value key = m_table.value(kind->keyField);
        return key.isNull() ? Source() : Source{kind, key.toInt()};
    }
    return {};
}

} // namespace Tallymere
