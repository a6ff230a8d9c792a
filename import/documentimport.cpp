#include "import/documentimport.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentImport::DocumentImport(const ImportRun &run, const DocumentKind &kind)
    : m_answers(run.answers)
    , m_entry(kind.entry.make(run.database, run.answers))
    , m_names(run.database)
    , m_today(run.database.session().today())
{
    m_entry->numbers = heldNumbers(run.counters);
    m_entry->open();
}

// Runs one step of a document; what refuses it is reported for the row, after what it is about. False when it was refused.
template <typename Step>
bool DocumentImport::tryStep(ImportRow &row, ImportErrors &errors, Step step, const QString &about)
{
    try {
        step();
        return true;
    } catch (const RuleError &error) {
        errors.add(row.line, about + error.message());
    } catch (const SilentAbort &) {
        errors.add(row.line, about + m_answers.lastText());
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::BadValue)
            throw;
        errors.add(row.line, about + error.text());
    }
    row.isBad = true;
    return false;
}

void DocumentImport::add(ImportDocument &document, ImportErrors &errors)
{
    ImportRow &first = document.front();
    beginDocument(first);
    tryStep(first, errors, [&] { setHeader(first); });
    for (ImportRow &row : document) {
        if (!row.isBad
            && !tryStep(
                row, errors, [&] { addLine(row); }, itemOf(row))
            && m_entry->lines().isEditing())
            m_entry->lines().cancel();
    }
    // A document with a bad row would only be told again that something is missing.
    const bool complete =
        std::none_of(document.begin(), document.end(), [](const ImportRow &row) { return row.isBad; });
    const int key = m_entry->key();
    if (!complete || !tryStep(first, errors, [&] { m_entry->save(); }))
        return m_entry->cancel();
    keepWritten(key);
}

void DocumentImport::beginDocument(const ImportRow &row)
{
    const std::optional<QString> &numberField = m_entry->kind().numberField;
    const ImportCell *given = numberField ? row.cell(*numberField) : nullptr;
    if (given && !given->value.isNull())
        return m_entry->newDocument(given->value.toText());
    m_entry->newDocument();
    while (numberField && isNumberTaken(m_entry->header(), *numberField)) {
        m_entry->cancel();
        m_entry->newDocument();
    }
}

std::vector<const ImportCell *> DocumentImport::cellsOf(const Engine::Table &table, const ImportRow &row) const
{
    std::vector<const ImportCell *> cells;
    for (int i = 0; i < table.fieldCount(); ++i) {
        const QString &field = table.field(i).name;
        if (const ImportCell *cell = row.cell(field); cell && field != m_entry->kind().numberField)
            cells.push_back(cell);
    }
    return cells;
}

// What the row leaves empty keeps the default of a new document.
void DocumentImport::setHeader(const ImportRow &row)
{
    for (const ImportCell *cell : cellsOf(m_entry->header(), row)) {
        const bool isTyped = cell->column->lookup.has_value();
        if (cell->column->target == m_entry->kind().dateField && cell->value.toDate() > m_today)
            m_entry->chooseDate(
                cell->value.toDate()); // which asks about one far off; files bring in former years as well
        else if (!isTyped || !m_entry->chooseByNumber(cell->column->target, cell->value.toText()))
            setField(m_entry->header(), *cell);
    }
}

void DocumentImport::addLine(const ImportRow &row)
{
    m_entry->newLine();
    m_entry->setLineColumn(Fields::ItemNo); // items are judged as those that are typed
    for (const ImportCell *cell : cellsOf(m_entry->lines(), row)) {
        if (cell->column->lookup && cell->column->target == "ItemID"_L1)
            m_entry->chooseItemByNumber(cell->value.toText());
        else
            setField(m_entry->lines(), *cell);
    }
    m_entry->requireQuantity();
    m_entry->lines().post();
}

// As what refuses a row begins with it: "ItemNo '1001': "; empty where the row names no item.
QString DocumentImport::itemOf(const ImportRow &row)
{
    const ImportCell *item = row.cell(Fields::ItemID);
    return item && !item->value.isNull() ? u"%1 '%2': "_s.arg(item->column->field, item->value.toText())
                                         : QString();
}

void DocumentImport::setField(Engine::Table &table, const ImportCell &cell)
{
    if (cell.value.isNull())
        return;
    const ImportColumn &column = *cell.column;
    if (column.lookup)
        table.set(column.target, m_names.key(*column.lookup, cell.value.toText()));
    else
        table.set(column.target, cell.value);
}

} // namespace Tallymere
