#pragma once

#include "printing/reportrun.h"

namespace Tallymere::Printing {

// Where a text stands on a page, without regard to letter case, in the order in which the page was made.
QList<QRectF> findText(const Page &page, const QString &text);

struct Hit
{
    int page = 0; // from 0
    int index = -1; // among the places of the page; -1: none of them yet
};

// Looks for the next place of a text, or the one before, a few pages at a time, while the pages of the report are still
// being made. Goes past the end to the beginning, which it does not before the last page is there, and ends where it
// began.
class PageSearch
{
public:
    enum class State { Searching, Found, NotFound };

    // From a place on, or from the beginning of a page (backwards: from its end). The run outlives the object.
    PageSearch(const ReportRun &run, const QString &text, bool forward, const Hit &from);

    // Goes on until the time is over, at least by one page if there is one. Throws RuleError when a page cannot be read.
    State search(QDeadlineTimer until);
    // All pages that it could look at have been, and further ones are being made.
    bool isWaiting() const { return m_state == State::Searching && !canGoOn(); }
    bool isForward() const { return m_forward; }
    int pagesSearched() const;
    const Hit &hit() const { return m_hit; } // once it is found

private:
    bool canGoOn() const;
    void lookAtNext();

    const ReportRun &m_run;
    QString m_text;
    bool m_forward;
    Hit m_from;
    State m_state = State::Searching;
    int m_next; // page; before the first or behind the last one where it is to begin anew
    int m_looks = 0;
    Hit m_hit;
};

} // namespace Tallymere::Printing
