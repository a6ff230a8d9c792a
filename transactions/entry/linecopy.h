#pragma once

#include "engine/records/table.h"

#include <map>
#include <optional>
#include <vector>

namespace Tallymere {

// The lines of a document as they were stored when a visit began to change them, to bring them back, and what the
// visit has made of them since. The latter tells its own changes from those of others after a connection was lost,
// and with it the lock that kept others out: then not even what the last statement did is certain.
class LineCopy
{
public:
    using State = std::optional<Engine::Row>; // nothing: there is no such line

    LineCopy(const Engine::Table &lines, std::vector<Engine::Row> stored);

    const std::vector<Engine::Row> &rows() const { return m_rows; }

    void changing(int seq, const State &to); // about to be written; either may be stored if the connection breaks
    void changed(int seq, const State &to);
    void refused(int seq); // what was about to be written is not stored for certain
    void mayHaveBecome(const LineCopy &later); // what that knows is stored, or what this one knows
    void restoring(); // all lines are about to be as they were
    void restoring(int seq, const Engine::Row &as); // this one as its kind brings it back

    // Whether these lines can be what the visit has left, and nobody else has changed any.
    bool accountsFor(const std::vector<Engine::Row> &stored) const;
    QString summary() const; // "Lines changed: 1. Lines added: 2. Lines deleted: 0."

private:
    int seqOf(const Engine::Row &row) const;
    bool isSame(const State &a, const State &b) const;
    State original(int seq) const;

    const Engine::Table &m_lines;
    std::vector<Engine::Row> m_rows;
    std::map<int, std::vector<State>> m_possible; // by number; what can be stored of a line
};

} // namespace Tallymere
