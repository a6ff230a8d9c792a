#include "printing/pagesearch.h"

#include <algorithm>

namespace Tallymere::Printing {

QList<QRectF> findText(const Page &page, const QString &text)
{
    QList<QRectF> places;
    if (text.isEmpty())
        return places;
    for (const TextItem &item : page.texts) {
        const TextMeasure &measure = TextMeasure::of(item.style);
        for (qsizetype at = item.text.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
             at = item.text.indexOf(text, at + text.size(), Qt::CaseInsensitive)) {
            const double left = item.x + measure.width(item.text.left(at)) * item.squeeze;
            const double width = measure.width(item.text.mid(at, text.size())) * item.squeeze;
            places.append(QRectF(left, item.y - measure.ascent(), width, measure.lineHeight()));
        }
    }
    return places;
}

PageSearch::PageSearch(const ReportRun &run, const QString &text, bool forward, const Hit &from)
    : m_run(run)
    , m_text(text)
    , m_forward(forward)
    , m_from(from)
    , m_next(from.page)
{
}

int PageSearch::pagesSearched() const { return std::min(m_looks, m_run.pageCount()); }

bool PageSearch::canGoOn() const { return (m_next >= 0 && m_next < m_run.pageCount()) || m_run.hasEnded(); }

PageSearch::State PageSearch::search(QDeadlineTimer until)
{
    while (m_state == State::Searching && canGoOn()) {
        lookAtNext();
        if (until.hasExpired())
            break;
    }
    return m_state;
}

void PageSearch::lookAtNext()
{
    const int count = m_run.pageCount();
    if (m_next < 0 || m_next >= count)
        m_next = m_forward ? 0 : count - 1;
    const bool isFirstLook = m_looks++ == 0;
    const int hits = count > 0 ? static_cast<int>(findText(m_run.page(m_next), m_text).size()) : 0;
    int hit = m_forward ? 0 : hits - 1;
    if (isFirstLook && m_from.index >= 0)
        hit = m_from.index + (m_forward ? 1 : -1);
    if (hit >= 0 && hit < hits) {
        m_hit = {m_next, hit};
        m_state = State::Found;
    } else if (count == 0 || (!isFirstLook && m_next == m_from.page)) {
        m_state = State::NotFound;
    } else {
        m_next += m_forward ? 1 : -1;
    }
}

} // namespace Tallymere::Printing
