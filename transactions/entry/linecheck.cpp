#include "transactions/entry/linecheck.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "master/barcodes.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;
using Engine::Value;

namespace Tallymere {

namespace {

[[noreturn]] void refuseItem(const QString &column)
{
    throw RuleError(TransactionsTexts::tr("Item not found...\nPress Esc or enter a different item no"), column);
}

} // namespace

LineCheck::LineCheck(const Engine::Table &lines, const DocumentKind &kind, Prompts &prompts)
    : m_lines(lines)
    , m_kind(kind)
    , m_prompts(prompts)
{
}

// --- the item ------------------------------------------------------------------------------------------------

void LineCheck::requireUsable(const Value &itemId) const
{
    const bool typed = m_column == "ItemNo"_L1;
    const int column = m_lines.fieldIndex(m_column);
    const bool picked = !typed && column >= 0 && m_lines.field(column).type == FieldType::Text;
    if (itemId.toInt() == 0 || !(typed || picked))
        return;
    const Engine::StatementPtr item = m_lines.database().connection().prepare(
        u"SELECT ItemNo, ItemDescription, Suspended FROM Item WHERE ItemID = ?"_s);
    item->bind(0, itemId);
    const bool found = item->next();
    if (typed && !found)
        refuseItem(Fields::ItemNo);
    if (!found || !item->valueAt(2, FieldType::Boolean).toBool())
        return;
    if (typed)
        throw RuleError(TransactionsTexts::tr("Item has been suspended"), Fields::ItemNo);
    throw RuleError(TransactionsTexts::tr("Item '%1: %2' has been suspended").arg(item->textAt(0), item->textAt(1)),
                    Fields::ItemNo);
}

int LineCheck::itemByNumber(const QString &itemNo) const
{
    const std::optional<int> itemId = itemOfCode(m_lines.database(), itemNo);
    if (!itemId)
        refuseItem(Fields::ItemNo);
    return *itemId;
}

int LineCheck::itemByDescription(const QString &description) const
{
    Engine::TableReader items(m_lines.database(), u"Item"_s);
    items.setIndex(Fields::ItemDescription);
    items.open();
    const auto item =
        items.find(Fields::ItemDescription, {Value(description)}, Engine::LocateOption::CaseInsensitive);
    if (!item)
        refuseItem(Fields::ItemDescription);
    return static_cast<int>(item->key.first());
}

// --- the line as a whole -------------------------------------------------------------------------------------

void LineCheck::refuse(const QString &message, const QString &column) const
{
    throw RuleError(TransactionsTexts::tr("%1...\nMake changes or press Esc to undo").arg(message), column);
}

void LineCheck::requireField(const QString &field, const QString &column) const
{
    if (m_lines.value(field).isNull())
        refuse(TransactionsTexts::tr("Field '%1' must have a value").arg(m_lines.field(field).label), column);
}

void LineCheck::requireItem() const
{
    requireField(Fields::ItemID, Fields::ItemNo);
    if (!Engine::hasRow(m_lines.database(), u"Item"_s, Fields::ItemID, m_lines.value(Fields::ItemID)))
        refuse(TransactionsTexts::tr("Item not found"), Fields::ItemNo);
}

void LineCheck::requireQuantity() const { requireField(quantityField(), quantityField()); }

void LineCheck::checkFigures(double cost)
{
    const EnteredFigures entered = figures(cost);
    if (entered == m_known)
        return;
    requireFigures(cost);
    confirmLargeFigures(entered, quantityField(), m_prompts);
    m_known = entered;
}

std::optional<QString> LineCheck::questionOf(double cost) const { return questionOfLargeFigures(figures(cost)); }

void LineCheck::requireFigures(double cost) const
{
    try {
        requireAmount(figures(cost), quantityField());
    } catch (const RuleError &error) {
        refuse(error.message(), error.column());
    }
}

} // namespace Tallymere
