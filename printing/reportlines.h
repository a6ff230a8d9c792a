#pragma once

#include "printing/reportlayout.h"
#include "printing/rowreader.h"

#include <deque>

namespace Tallymere::Printing {

enum class Band { GroupHeading, Opening, Detail, GroupTotal, ReportTotal };

// A line of a report, before it has a place on a page or in a file.
struct ReportLine
{
    Band band = Band::Detail;
    int group = -1; // of a heading or a total: its index in the layout
    // By field. A total holds sums in the fields that have one, a group's names the rest of a group's line; other
    // fields of both are those of a row of the group.
    std::vector<Engine::Value> values{};
    int begins = -1; // the outermost of the groups that begin with this line; -1: none does
};

// Turns rows into lines: begins and ends groups and sums up. What is printed and what is written to a file both come
// from here, so they cannot differ.
class ReportLines
{
public:
    ReportLines(const ReportLayout &layout, RowReader &rows); // both outlive the object

    bool next(ReportLine &line); // false after the last
    int count() const { return m_count; } // of those given so far, headings not counted
    // The position of a field in values; -1 when the rows have none of that name.
    int indexOf(const QString &field) const;
    bool isSummed(int field, Band band) const; // in totals of groups or of the report

private:
    struct Sum
    {
        Engine::Money amount;
        double quantity = 0;
    };
    struct SummedField
    {
        int field;
        TotalOf what;
        bool ofReport;
    };

    struct NamedGroup
    {
        const Group *layout;
        int key;
        std::vector<int> names; // fields
    };

    void takeRow();
    void nameGroups();
    void beginGroups(size_t from);
    void endGroups(size_t from);
    void add(const ReportRow &row);
    void addAmount(Sum &sum, const Engine::Value &value) const; // throws RuleError when it is none any more
    void endAccount(); // its closing values count in the groups that it belongs to
    void addTotal(Band band, size_t level);
    size_t firstChanged() const;

    const ReportLayout &m_layout;
    RowReader &m_rows;
    std::vector<int> m_keys; // fields of the groups
    std::vector<NamedGroup> m_named; // those that have words for a group without a name
    std::vector<SummedField> m_summed;
    std::vector<std::vector<Sum>> m_sums; // of each group, and of the report last
    std::vector<double> m_closing; // of the account in hand, by m_summed
    bool m_inAccount = false;
    ReportRow m_row;
    std::vector<Engine::Value> m_previous; // values of the row before; empty before the first
    std::deque<ReportLine> m_waiting;
    bool m_done = false;
    int m_count = 0;
};

} // namespace Tallymere::Printing
