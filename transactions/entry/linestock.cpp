#include "transactions/entry/linestock.h"

#include "base/rounding.h"
#include "data/fields.h"
#include "data/transtypes.h"
#include "engine/store/database.h"
#include "transactions/documents/documentkind.h"

#include <algorithm>
#include <limits>
#include <utility>

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
    m_location = 0;
    linesChanged();
}

void LineStock::linesChanged() { m_parts.reset(); }

std::optional<double> LineStock::onHand(const Engine::DataSet &line)
{
    const Account account(line.integer(Fields::ItemID), m_header.integer(Fields::WarehouseID));
    if (account.first <= 0 || account.second <= 0 || m_header.boolean(Fields::Posted))
        return std::nullopt;
    const auto known = m_balances.constFind(account);
    return known != m_balances.cend() ? *known : balance(account);
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

// At another location than before, with all that the lines will be asked for next.
std::optional<double> LineStock::balance(Account account)
{
    const auto [item, location] = account;
    const bool isNewLocation = location != m_location;
    Engine::StatementPtr rows = m_lines.database().connection().prepare(
        u"SELECT I.ItemID, B.QtyOnHand, T.Inventory FROM Item I "
        "LEFT OUTER JOIN ItemType T ON T.ItemTypeID = I.ItemTypeID "
        "LEFT OUTER JOIN IBalance B ON B.ItemID = I.ItemID AND B.WarehouseID = ? WHERE I.ItemID %1"_s.arg(
            isNewLocation ? u"IN (SELECT CAST(? AS integer) UNION SELECT L.ItemID FROM %1 L WHERE L.%2 = ?)"_s.arg(
                m_kind.lineTable, m_kind.keyField)
                          : u"= ?"_s));
    rows->bindInt(0, location);
    rows->bindInt(1, item);
    if (isNewLocation)
        rows->bind(2, m_header.value(m_kind.keyField));
    rows->ask();
    const Engine::StatementPtr lines = isNewLocation && !m_parts ? askLines() : nullptr;
    QHash<Account, std::optional<double>> found{{account, std::nullopt}};
    while (rows->next()) {
        const bool isNone = rows->isNull(1) && !rows->valueAt(2, Engine::FieldType::Boolean).toBool();
        found.insert({static_cast<int>(rows->intAt(0)), location},
                     isNone ? std::nullopt : std::optional(withoutNoise(rows->doubleAt(1))));
    }
    if (lines)
        takeLines(*lines);
    m_balances.insert(found);
    m_location = location;
    return m_balances.value(account);
}

double LineStock::before(int item, int seq)
{
    if (!m_parts)
        takeLines(*askLines());
    const auto found = m_parts->constFind(item);
    if (found == m_parts->cend())
        return 0;
    const std::vector<Part> &parts = *found;
    const auto next = std::ranges::lower_bound(parts, seq, {}, &Part::seq);
    return next == parts.begin() ? 0 : std::prev(next)->sum;
}

Engine::StatementPtr LineStock::askLines() const
{
    Engine::StatementPtr rows =
        m_lines.database().connection().prepare(u"SELECT ItemID, Seq, %1 FROM %2 WHERE %3 = ? ORDER BY Seq"_s.arg(
            m_kind.entry.lineColumns.constFirst().field, m_kind.lineTable, m_kind.keyField));
    rows->bind(0, m_header.value(m_kind.keyField));
    rows->ask();
    return rows;
}

void LineStock::takeLines(Engine::Statement &rows)
{
    m_parts.emplace();
    while (rows.next()) {
        std::vector<Part> &parts = (*m_parts)[static_cast<int>(rows.intAt(0))];
        parts.push_back(
            {static_cast<int>(rows.intAt(1)), (parts.empty() ? 0 : parts.back().sum) + rows.doubleAt(2)});
    }
}

} // namespace Tallymere
