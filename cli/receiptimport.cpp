#include "cli/receiptimport.h"

#include "engine/error.h"
#include "frame/shared/ruleerror.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

ReceiptImport::ReceiptImport(const ImportRun &run)
    : m_answers(run.answers)
    , m_entry(run.database, run.answers)
    , m_names(run.database)
{
    m_entry.numbers = heldNumbers(run.counters);
    m_entry.open();
}

// Runs one step of a document; what refuses it is reported for the row. False when it was refused.
template <typename Step> bool ReceiptImport::tryStep(ImportRow &row, ImportErrors &errors, Step step)
{
    try {
        step();
        return true;
    } catch (const RuleError &error) {
        errors.add(row.line, error.message());
    } catch (const SilentAbort &) {
        errors.add(row.line, m_answers.lastText());
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::BadValue)
            throw;
        errors.add(row.line, error.text());
    }
    row.isBad = true;
    return false;
}

void ReceiptImport::add(ImportDocument &document, ImportErrors &errors)
{
    ImportRow &first = document.front();
    beginReceipt(first);
    tryStep(first, errors, [&] { setHeader(first); });
    for (ImportRow &row : document) {
        if (!row.isBad && !tryStep(row, errors, [&] { addLine(row); }) && m_entry.lines().isEditing())
            m_entry.lines().cancel();
    }
    // A document with a bad row would only be told again that something is missing.
    const bool complete =
        std::none_of(document.begin(), document.end(), [](const ImportRow &row) { return row.isBad; });
    if (!complete || !tryStep(first, errors, [&] { m_entry.save(); }))
        m_entry.cancel();
}

void ReceiptImport::beginReceipt(const ImportRow &row)
{
    const ImportCell *given = row.cell(u"ReceiptNo");
    if (given && !given->value.isNull())
        return m_entry.newDocument(given->value.toText());
    m_entry.newDocument();
    while (isNumberTaken(m_entry.header(), m_entry.kind().numberField)) {
        m_entry.cancel();
        m_entry.newDocument();
    }
}

// What the row leaves empty keeps the default of a new receipt.
void ReceiptImport::setHeader(const ImportRow &row)
{
    for (const QStringView field : {u"ReceiptDate", u"GLYear", u"GLPeriod", u"PurchaseOrderNo", u"WarehouseID"})
        setField(m_entry.header(), row, field);
    const ImportCell *vendor = row.cell(u"VendorID");
    if (vendor && vendor->column->lookup)
        m_entry.chooseVendorByNumber(vendor->value.toText());
    else
        setField(m_entry.header(), row, u"VendorID");
}

void ReceiptImport::addLine(const ImportRow &row)
{
    m_entry.newLine();
    const ImportCell *item = row.cell(u"ItemID");
    if (item && item->column->lookup) {
        m_entry.chooseItemByNumber(item->value.toText());
    } else {
        m_entry.setLineColumn(u"ItemNo"_s);
        setField(m_entry.lines(), row, u"ItemID");
    }
    setField(m_entry.lines(), row, u"QtyReceived");
    setField(m_entry.lines(), row, u"UnitCost");
    m_entry.lines().post();
}

void ReceiptImport::setField(Engine::Table &table, const ImportRow &row, QStringView field)
{
    const ImportCell *cell = row.cell(field);
    if (!cell || cell->value.isNull())
        return;
    if (cell->column->lookup)
        table.set(field, m_names.key(*cell->column->lookup, cell->value.toText()));
    else
        table.set(field, cell->value);
}

} // namespace Tallymere
