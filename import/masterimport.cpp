#include "import/masterimport.h"

#include "base/ruleerror.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

MasterImport::MasterImport(const ImportRun &run, const MasterKind &kind)
    : m_record(run.database, kind)
    , m_names(run.database)
{
    m_record.numbers = heldNumbers(run.counters);
    m_record.open();
}

void MasterImport::add(ImportDocument &document, ImportErrors &errors)
{
    const ImportRow &row = document.front();
    if (row.isBad)
        return; // a value is missing that the checks would ask for
    try {
        addRow(row);
    } catch (const RuleError &error) {
        errors.add(row.line, error.message());
        m_record.cancel();
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::BadValue)
            throw;
        errors.add(row.line, error.text());
        m_record.cancel();
    }
}

void MasterImport::addRow(const ImportRow &row)
{
    beginRecord(row);
    for (const ImportCell &cell : row.cells)
        setField(cell);
    const int key = m_record.key();
    m_record.save();
    keepWritten(key > 0 ? key : m_record.key()); // a key may come from the store only now
}

void MasterImport::beginRecord(const ImportRow &row)
{
    const QString numberField = m_record.kind().numberField;
    const ImportCell *given = numberField.isEmpty() ? nullptr : row.cell(numberField);
    if (given && !given->value.isNull())
        return m_record.newRecord(given->value.toText());

    m_record.newRecord();
    if (numberField.isEmpty())
        return;
    while (isNumberTaken(m_record.table(), numberField)) {
        m_record.cancel();
        m_record.newRecord();
    }
}

void MasterImport::setField(const ImportCell &cell)
{
    if (cell.value.isNull())
        return;
    const ImportColumn &column = *cell.column;
    if (column.lookup)
        m_record.table().set(column.target, m_names.key(*column.lookup, cell.value.toText()));
    else if (column.type == Engine::FieldType::Text || column.type == Engine::FieldType::Memo)
        m_record.table().setText(column.target, cell.value.toText());
    else
        m_record.table().set(column.target, cell.value);
}

} // namespace Tallymere
