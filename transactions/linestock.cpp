#include "transactions/linestock.h"

#include "base/rounding.h"
#include "data/fields.h"
#include "data/transtypes.h"
#include "engine/store/database.h"
#include "transactions/documentkind.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Tallymere {

LineStock::LineStock(const Engine::Table &header, const Engine::Table &lines, const DocumentKind &kind)
    : m_header(header)
    , m_lines(lines)
    , m_kind(kind)
{
}

void LineStock::forget()
{
    m_balances.clear();
    linesChanged();
}

void LineStock::linesChanged() { m_parts.reset(); }

std::optional<double> LineStock::onHand(const Engine::DataSet &line)
{
    const Account account(line.integer(Fields::ItemID), m_header.integer(Fields::WarehouseID));
    if (account.first <= 0 || account.second <= 0 || m_header.boolean(Fields::Posted))
        return std::nullopt;
    const auto known = m_balances.constFind(account);
    return known != m_balances.cend() ? *known : *m_balances.insert(account, balance(account));
}

std::optional<double> LineStock::afterwards(const Engine::DataSet &line)
{
    const std::optional<double> now = onHand(line);
    if (!now)
        return std::nullopt;
    const Engine::Value seq = line.value(Fields::Seq); // a line that is new has none
    const double moved =
        before(line.integer(Fields::ItemID), seq.isNull() ? std::numeric_limits<int>::max() : seq.toInt())
        + line.number(m_kind.entry.lineColumns.constFirst().field);
    return withoutNoise(*now + stockChange(m_kind.posting.transType, moved));
}

std::optional<double> LineStock::balance(Account account) const
{
    const Engine::StatementPtr row = m_lines.database().connection().prepare(
        u"SELECT B.QtyOnHand, T.Inventory FROM Item I LEFT OUTER JOIN ItemType T ON T.ItemTypeID = I.ItemTypeID "
        "LEFT OUTER JOIN IBalance B ON B.ItemID = I.ItemID AND B.WarehouseID = ? WHERE I.ItemID = ?"_s);
    row->bindInt(0, account.second);
    row->bindInt(1, account.first);
    if (!row->next() || (row->isNull(0) && !row->valueAt(1, Engine::FieldType::Boolean).toBool()))
        return std::nullopt;
    return withoutNoise(row->doubleAt(0));
}

double LineStock::before(int item, int seq)
{
    if (!m_parts)
        readLines();
    const auto found = m_parts->constFind(item);
    if (found == m_parts->cend())
        return 0;
    const std::vector<Part> &parts = *found;
    const auto next = std::ranges::lower_bound(parts, seq, {}, &Part::seq);
    return next == parts.begin() ? 0 : std::prev(next)->sum;
}

void LineStock::readLines()
{
    m_parts.emplace();
    const Engine::StatementPtr row =
        m_lines.database().connection().prepare(u"SELECT ItemID, Seq, %1 FROM %2 WHERE %3 = ? ORDER BY Seq"_s.arg(
            m_kind.entry.lineColumns.constFirst().field, m_kind.lineTable, m_kind.keyField));
    row->bind(0, m_header.value(m_kind.keyField));
    while (row->next()) {
        std::vector<Part> &parts = (*m_parts)[static_cast<int>(row->intAt(0))];
        parts.push_back(
            {static_cast<int>(row->intAt(1)), (parts.empty() ? 0 : parts.back().sum) + row->doubleAt(2)});
    }
}

} // namespace Tallymere
