#include "care/screens/findingslist.h"

#include "base/plural.h"
#include "care/texts.h"
#include "printing/rowreader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

class FindingRows final : public Printing::RowReader
{
public:
    explicit FindingRows(FindingsList findings)
        : m_findings(std::move(findings))
    {
    }

    const QStringList &fields() const override
    {
        static const QStringList names{u"Check"_s, u"Where"_s, u"What"_s, u"Effect"_s, u"Remedy"_s, u"State"_s};
        return names;
    }

    bool next(Printing::ReportRow &row) override
    {
        if (m_next == m_findings.rows().size())
            return false;
        const FindingsList::Row &found = m_findings.rows()[m_next++];
        row.kind = Printing::RowKind::Detail;
        row.values = {found.check,          found.finding.where,  found.finding.what,
                      found.finding.effect, found.finding.remedy, FindingsList::stateText(found.state)};
        return true;
    }

private:
    const FindingsList m_findings;
    size_t m_next = 0;
};

Printing::Column column(const QString &field, const QString &title, double width)
{
    return {.field = field, .title = title, .width = width, .wraps = true};
}

} // namespace

void FindingsList::add(const BookCheck &check, BookFinding finding, After after)
{
    const State done = after == After::Repair ? State::Mended : State::Mendable;
    const State state = finding.mend ? done : State::ForUser;
    finding.mend = {};
    m_rows.push_back({check.title, std::move(finding), state});
}

int FindingsList::count(State state) const
{
    return static_cast<int>(std::ranges::count(m_rows, state, &Row::state));
}

QString FindingsList::summary() const
{
    if (m_rows.empty())
        return CareTexts::tr("Nothing is wrong.");
    const QString all =
        plural(static_cast<int>(m_rows.size()), CareTexts::tr("%n finding"), CareTexts::tr("%n findings"));
    if (const int mended = count(State::Mended); mended > 0)
        return CareTexts::tr("%1, mended: %2, left to you: %3").arg(all).arg(mended).arg(count(State::ForUser));
    return CareTexts::tr("%1, a repair mends: %2").arg(all).arg(count(State::Mendable));
}

QString FindingsList::stateText(State state)
{
    switch (state) {
    case State::Mendable:
        return CareTexts::tr("Can be mended");
    case State::Mended:
        return CareTexts::tr("Mended");
    case State::ForUser:
        break;
    }
    return CareTexts::tr("Left to you");
}

ReportDescription findingsReport(const FindingsList &findings)
{
    ReportDescription report;
    report.name = u"TrptBookFindings"_s;
    report.listText = report.layout.title = CareTexts::tr("Check of the Books");
    report.layout.headings = {findings.summary()};
    report.layout.landscape = true;
    report.layout.rowRules = true;
    report.layout.columns = {column(u"Check"_s, CareTexts::tr("Check"), 0.9),
                             column(u"Where"_s, CareTexts::tr("Where"), 2),
                             column(u"What"_s, CareTexts::tr("What is wrong"), 2.6),
                             column(u"Effect"_s, CareTexts::tr("What it does to the figures"), 2),
                             column(u"Remedy"_s, CareTexts::tr("What mends it"), 2),
                             column(u"State"_s, CareTexts::tr("State"), 1)};
    report.rows = [findings](Engine::Database &, const ReportDescription &, const ReportSelection &) {
        return std::make_unique<FindingRows>(findings);
    };
    return report;
}

} // namespace Tallymere
