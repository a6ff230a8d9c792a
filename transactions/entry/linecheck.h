#pragma once

#include "base/prompts.h"
#include "engine/records/table.h"
#include "transactions/books/quantitycheck.h"
#include "transactions/documents/documentkind.h"

#include <optional>

namespace Tallymere {

// What is refused, and what is asked, of a line of a document before it is written. Refusals are RuleErrors with the
// field of the lines that the cursor goes to.
class LineCheck
{
public:
    // Judges the current line of the table. All three outlive the object.
    LineCheck(const Engine::Table &lines, const DocumentKind &kind, Prompts &prompts);

    // The column that the user is in, by field name. A new item is judged by it: typed as a number ("ItemNo"), or
    // picked by its description in a column with another text.
    void setColumn(const QString &field) { m_column = field; }
    void requireUsable(const Engine::Value &itemId) const; // refuses an item that is suspended or, typed, unknown
    int
    itemByNumber(const QString &itemNo) const; // or by a barcode; letter case is second to a number found as typed
    int itemByDescription(const QString &description) const; // letter case does not count

    [[noreturn]] void refuse(const QString &message, const QString &column) const; // with the advice to undo
    void requireField(const QString &field, const QString &column) const; // "Field '...' must have a value"
    void requireItem() const; // there is one, and it exists
    void requireQuantity() const;

    // The figures of the line at a cost of a unit, by which its amount is judged. Each are asked about once: those that
    // are stored or have been confirmed are meant.
    void newFigures() { m_known.reset(); }
    void storedFigures(double cost) { m_known = figures(cost); }
    void checkFigures(double cost); // SilentAbort when the user does not mean them
    void requireFigures(double cost) const; // refuses what is no amount of money, and asks nothing
    std::optional<QString> questionOf(double cost) const; // what would be asked of figures that are not known yet

private:
    const QString &quantityField() const { return m_kind.entry.lineColumns.constFirst().field; }
    EnteredFigures figures(double cost) const { return {m_lines.number(quantityField()), cost}; }

    const Engine::Table &m_lines;
    const DocumentKind &m_kind;
    Prompts &m_prompts;
    QString m_column;
    std::optional<EnteredFigures> m_known; // of the current line
};

} // namespace Tallymere
