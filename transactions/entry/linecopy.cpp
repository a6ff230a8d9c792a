#include "transactions/entry/linecopy.h"

#include "data/fields.h"
#include "transactions/texts.h"

#include <algorithm>

namespace Tallymere {

LineCopy::LineCopy(const Engine::Table &lines, std::vector<Engine::Row> stored)
    : m_lines(lines)
    , m_rows(std::move(stored))
{
    for (const Engine::Row &row : m_rows)
        m_possible[seqOf(row)] = {row};
}

int LineCopy::seqOf(const Engine::Row &row) const
{
    return row[static_cast<size_t>(m_lines.fieldIndex(Fields::Seq))].toInt();
}

void LineCopy::changing(int seq, const State &to)
{
    std::vector<State> &possible = m_possible[seq];
    if (possible.empty())
        possible.emplace_back(); // a new line
    possible.push_back(to);
}

void LineCopy::changed(int seq, const State &to) { m_possible[seq] = {to}; }

void LineCopy::refused(int seq)
{
    std::vector<State> &possible = m_possible[seq];
    possible.pop_back();
    if (possible.size() == 1 && !possible.front() && !original(seq))
        m_possible.erase(seq); // none of this visit's
}

void LineCopy::mayHaveBecome(const LineCopy &later)
{
    for (const auto &[seq, states] : later.m_possible) {
        std::vector<State> &possible = m_possible[seq];
        if (possible.empty())
            possible.emplace_back(); // a new line
        possible.insert(possible.end(), states.begin(), states.end());
    }
}

void LineCopy::restoring()
{
    for (auto &[seq, possible] : m_possible)
        possible.insert(possible.begin(), original(seq));
}

void LineCopy::restoring(int seq, const Engine::Row &as)
{
    std::vector<State> &possible = m_possible[seq];
    possible.insert(possible.begin(), as);
}

LineCopy::State LineCopy::original(int seq) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const Engine::Row &row) { return seqOf(row) == seq; });
    return found == m_rows.end() ? State() : *found;
}

// What is looked up in other tables is none of a line's own.
bool LineCopy::isSame(const State &a, const State &b) const
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    for (int i = 0; i < m_lines.fieldCount(); ++i) {
        const auto at = static_cast<size_t>(i);
        if (m_lines.field(i).kind == Engine::FieldKind::Data && (*a)[at] != (*b)[at])
            return false;
    }
    return true;
}

bool LineCopy::accountsFor(const std::vector<Engine::Row> &stored) const
{
    std::map<int, State> found;
    for (const auto &[seq, possible] : m_possible)
        found[seq] = {};
    for (const Engine::Row &row : stored)
        found[seqOf(row)] = row;
    return std::all_of(found.begin(), found.end(), [this](const auto &line) {
        const auto known = m_possible.find(line.first);
        return known != m_possible.end()
            && std::any_of(known->second.begin(), known->second.end(),
                           [&](const State &state) { return isSame(state, line.second); });
    });
}

QString LineCopy::summary() const
{
    int changed = 0;
    int added = 0;
    int deleted = 0;
    for (const auto &[seq, possible] : m_possible) {
        const State before = original(seq);
        const State &now = possible.back();
        if (isSame(before, now))
            continue;
        ++(!before ? added : !now ? deleted : changed);
    }
    return TransactionsTexts::tr("Lines changed: %1. Lines added: %2. Lines deleted: %3.")
        .arg(changed)
        .arg(added)
        .arg(deleted);
}

} // namespace Tallymere
