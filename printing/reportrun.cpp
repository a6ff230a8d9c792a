#include "printing/reportrun.h"

namespace Tallymere::Printing {

ReportRun::ReportRun(Report report, QPageSize::PageSizeId size, const PageTexts &texts)
    : m_report(std::move(report))
    , m_paper{size, m_report.layout.landscape ? QPageLayout::Landscape : QPageLayout::Portrait}
    , m_lines(m_report.layout, *m_report.rows)
    , m_maker(m_report.layout, m_lines, m_paper, texts, [this](const Page &page) { m_spool.append(page); })
{
}

bool ReportRun::makePages(QDeadlineTimer until)
{
    constexpr int linesBetweenLooks = 50; // at the clock
    try {
        do {
            for (int i = 0; i < linesBetweenLooks && !hasEnded(); ++i) {
                ReportLine line;
                if (m_lines.next(line)) {
                    m_maker.add(line);
                } else {
                    m_maker.finish();
                    m_state = State::Complete;
                }
            }
        } while (!hasEnded() && !until.hasExpired());
    } catch (...) {
        m_state = State::Failed;
        m_report.rows.reset(); // and what they hold in the store; nobody asks for lines any more
        throw;
    }
    return isComplete();
}

} // namespace Tallymere::Printing
