#pragma once

#include "data/fields.h"
#include "engine/records/tablereader.h"

#include <QString>

namespace Tallymere {

struct DocumentKind;

// The posted movements of stock, latest period first, with the names that they stand for.
class HistoryView
{
public:
    explicit HistoryView(Engine::Database &database);

    // The fields of IHist, and Periodppyyyy ("3/2026"), ItemNo, ItemDescription, WarehouseName, TransTypeName
    // ("PO Receipt"). For reading only.
    Engine::TableReader &table() { return m_table; }
    void open();

    // What the list can be narrowed to; 0: any.
    struct Filter
    {
        int itemId = 0;
        int warehouseId = 0;
        int type = 0; // a TransType
        int year = 0;
        int period = 0;
    };
    static QString filterExpression(const Filter &filter); // empty: everything shows

    // The document that the current row comes from; nullptr for what no document made, and for documents that are not
    // opened from here.
    struct Source
    {
        const DocumentKind *kind = nullptr;
        int key = 0;
    };
    Source source() const;
    Source document() const; // the same with those that "Source" does not open
    int itemId() const { return m_table.integer(Fields::ItemID); } // of the current row
    double quantity() const { return m_table.number(Fields::Quantity); }

private:
    Engine::TableReader m_table;
};

} // namespace Tallymere
