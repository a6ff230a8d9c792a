#include "transactions/kinds/linetotal.h"

#include "base/rounding.h"
#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/values/amounttoolarge.h"
#include "transactions/documents/documentkind.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

std::optional<Money> amount(double quantity, Money cost)
{
    try {
        return amountOf(quantity, cost);
    } catch (const Engine::AmountTooLarge &) {
        return std::nullopt;
    }
}

} // namespace

LineTotal::LineTotal(const Engine::Table &header, const Engine::Table &lines, const DocumentKind &kind)
    : m_header(header)
    , m_lines(lines)
    , m_kind(kind)
{
}

std::optional<Money> LineTotal::of(const Engine::DataSet &line) const
{
    const Engine::Value quantity = line.value(m_kind.entry.lineColumns.constFirst().field);
    const Engine::Value cost = line.value(Fields::UnitCost);
    if (quantity.isNull() || cost.isNull())
        return std::nullopt;
    return amount(quantity.toDouble(), cost.toMoney());
}

std::optional<Money> LineTotal::sum()
{
    if (!m_stored)
        readLines();
    const int inHand = m_lines.isEditing() ? m_lines.integer(Fields::Seq) : 0;
    Money sum;
    try {
        for (auto line = m_stored->cbegin(); line != m_stored->cend(); ++line) {
            if (line.key() != inHand)
                sum = sum + line.value();
        }
        if (m_lines.isEditing())
            sum = sum + of(m_lines).value_or(Money());
    } catch (const Engine::AmountTooLarge &) {
        return std::nullopt;
    }
    return sum;
}

void LineTotal::readLines()
{
    m_stored.emplace();
    const Engine::StatementPtr row =
        m_lines.database().connection().prepare(u"SELECT Seq, %1, UnitCost FROM %2 WHERE %3 = ?"_s.arg(
            m_kind.entry.lineColumns.constFirst().field, m_kind.lineTable, m_kind.keyField));
    row->bind(0, m_header.value(m_kind.keyField));
    while (row->next()) {
        const Money cost = row->valueAt(2, Engine::FieldType::Money).toMoney();
        m_stored->insert(static_cast<int>(row->intAt(0)), amount(row->doubleAt(1), cost).value_or(Money()));
    }
}

} // namespace Tallymere
