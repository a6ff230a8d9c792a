#include "printing/reportlines.h"

#include "base/ruleerror.h"
#include "engine/values/amounttoolarge.h"
#include "printing/texts.h"

#include <algorithm>

using Engine::Value;

namespace Tallymere::Printing {

ReportLines::ReportLines(const ReportLayout &layout, RowReader &rows)
    : m_layout(layout)
    , m_rows(rows)
    , m_sums(static_cast<size_t>(layout.groups.size()) + 1)
{
    for (const Group &group : layout.groups)
        m_keys.push_back(indexOf(group.key));
    for (const Total &total : layout.totals)
        m_summed.push_back({indexOf(total.field), total.what, total.ofReport});
    for (std::vector<Sum> &sums : m_sums)
        sums.resize(m_summed.size());
    m_closing.resize(m_summed.size());
    for (const Group &group : layout.groups) {
        if (group.unnamed.isEmpty())
            continue;
        m_named.push_back({&group, indexOf(group.key), {}});
        for (const QString &field : group.fields)
            m_named.back().names.push_back(indexOf(field));
    }
}

int ReportLines::indexOf(const QString &field) const { return static_cast<int>(m_rows.fields().indexOf(field)); }

bool ReportLines::isSummed(int field, Band band) const
{
    return std::ranges::any_of(m_summed, [=](const SummedField &summed) {
        return summed.field == field && (summed.ofReport || band != Band::ReportTotal);
    });
}

bool ReportLines::next(ReportLine &line)
{
    while (m_waiting.empty() && !m_done)
        takeRow();
    if (m_waiting.empty())
        return false;
    line = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_count += line.band == Band::GroupHeading ? 0 : 1;
    return true;
}

void ReportLines::takeRow()
{
    if (!m_rows.next(m_row)) {
        m_done = true;
        if (!m_previous.empty())
            endGroups(0);
        if (!m_layout.reportTotalText.isEmpty())
            addTotal(Band::ReportTotal, m_keys.size());
        return;
    }
    nameGroups();
    const size_t changed = firstChanged();
    if (!m_previous.empty())
        endGroups(changed);
    const size_t before = m_waiting.size();
    beginGroups(changed);
    if (m_row.kind == RowKind::Opening)
        endAccount();
    add(m_row);
    if (m_layout.details)
        m_waiting.push_back({m_row.kind == RowKind::Opening ? Band::Opening : Band::Detail, -1, m_row.values});
    if (changed < m_keys.size() && before < m_waiting.size())
        m_waiting[before].begins = static_cast<int>(changed);
    m_previous.swap(m_row.values);
}

// A group that nothing names is told from others like it.
void ReportLines::nameGroups()
{
    const auto valueAt = [this](int field) -> Value & { return m_row.values[static_cast<size_t>(field)]; };
    for (const NamedGroup &group : m_named) {
        if (!std::ranges::all_of(group.names, [&](int name) { return valueAt(name).toText().isEmpty(); }))
            continue;
        const Value &key = valueAt(group.key);
        valueAt(group.names.front()) =
            key.toInt64() == 0 ? Value(group.layout->keyless) : Value(group.layout->unnamed.arg(key.toText()));
    }
}

size_t ReportLines::firstChanged() const
{
    if (m_previous.empty())
        return 0;
    size_t group = 0;
    while (group < m_keys.size()
           && m_previous[static_cast<size_t>(m_keys[group])] == m_row.values[static_cast<size_t>(m_keys[group])])
        ++group;
    return group;
}

void ReportLines::beginGroups(size_t from)
{
    for (size_t group = from; group < m_keys.size(); ++group)
        if (m_layout.groups[static_cast<qsizetype>(group)].heading)
            m_waiting.push_back({Band::GroupHeading, static_cast<int>(group), m_row.values});
}

void ReportLines::endGroups(size_t from)
{
    if (from < m_keys.size() || m_done)
        endAccount();
    for (size_t group = m_keys.size(); group-- > from;) {
        if (!m_layout.groups[static_cast<qsizetype>(group)].totalText.isEmpty())
            addTotal(Band::GroupTotal, group);
        std::ranges::fill(m_sums[group], Sum());
    }
}

void ReportLines::add(const ReportRow &row)
{
    for (size_t i = 0; i < m_summed.size(); ++i) {
        const Value &value = row.values[static_cast<size_t>(m_summed[i].field)];
        if (m_summed[i].what == TotalOf::Closing) {
            m_closing[i] = value.toDouble();
            m_inAccount = true;
            continue;
        }
        for (std::vector<Sum> &sums : m_sums) {
            if (m_summed[i].what == TotalOf::Amounts)
                addAmount(sums[i], value);
            else
                sums[i].quantity += value.toDouble();
        }
    }
}

void ReportLines::addAmount(Sum &sum, const Value &value) const
{
    try {
        sum.amount = sum.amount + value.toMoney();
    } catch (const Engine::AmountTooLarge &) {
        throw RuleError(PrintingTexts::tr("A total of the report '%1' is beyond what an amount of money can be")
                            .arg(m_layout.title));
    }
}

void ReportLines::endAccount()
{
    if (!std::exchange(m_inAccount, false))
        return;
    for (size_t i = 0; i < m_summed.size(); ++i) {
        if (m_summed[i].what != TotalOf::Closing)
            continue;
        for (std::vector<Sum> &sums : m_sums)
            sums[i].quantity += m_closing[i];
    }
}

void ReportLines::addTotal(Band band, size_t level)
{
    ReportLine line{band, band == Band::GroupTotal ? static_cast<int>(level) : -1, m_previous};
    if (line.values.empty())
        line.values.resize(static_cast<size_t>(m_rows.fields().size()));
    for (size_t i = 0; i < m_summed.size(); ++i) {
        const Sum &sum = m_sums[level][i];
        line.values[static_cast<size_t>(m_summed[i].field)] =
            m_summed[i].what == TotalOf::Amounts ? Value(sum.amount) : Value(sum.quantity);
    }
    m_waiting.push_back(std::move(line));
}

} // namespace Tallymere::Printing
