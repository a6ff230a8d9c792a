#pragma once

#include "printing/pagemaker.h"
#include "printing/pagespool.h"

#include <QDeadlineTimer>

namespace Tallymere::Printing {

// What makes up one report: what it looks like and the rows that it shows.
struct Report
{
    ReportLayout layout;
    RowReaderPtr rows;
    QString origin = {}; // where they come from, for who looks at them; empty: from where everything is
};

// Makes the pages of a report, a few at a time: the first can be seen before the last is made. Uses the store that the
// rows come from, so on its thread only.
class ReportRun
{
public:
    ReportRun(Report report, QPageSize::PageSizeId size, const PageTexts &texts);

    // Goes on, at least by some lines, until the time is over or the report is complete, which is true then. Throws what
    // the rows throw, and RuleError when there is no room for the pages; the report has ended then without being complete.
    bool makePages(QDeadlineTimer until = QDeadlineTimer::Forever);
    bool isComplete() const { return m_state == State::Complete; }
    bool hasEnded() const { return m_state != State::Running; } // no further pages come

    QString title() const { return m_report.layout.title; }
    const QString &origin() const { return m_report.origin; }
    const Paper &paper() const { return m_paper; }
    int pageCount() const { return m_spool.count(); } // so far
    int lineCount() const { return m_lines.count(); } // that these pages show, without headings of groups
    Page page(int index) const { return m_spool.page(index); } // from 0

private:
    Report m_report;
    Paper m_paper;
    PageSpool m_spool;
    ReportLines m_lines;
    PageMaker m_maker;
    enum class State { Running, Complete, Failed } m_state = State::Running;
};

} // namespace Tallymere::Printing
