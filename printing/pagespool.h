#pragma once

#include "printing/page.h"

#include <QTemporaryFile>

namespace Tallymere::Printing {

// The pages of a report, kept in a temporary file: memory does not grow with them, and each can be had at once.
class PageSpool
{
public:
    void append(const Page &page); // throws RuleError when the file takes no more
    int count() const { return static_cast<int>(m_starts.size()); }
    Page page(int index) const; // throws RuleError when the file cannot be read; index from 0

private:
    mutable QTemporaryFile m_file;
    QList<qint64> m_starts;
    qint64 m_end = 0;
};

} // namespace Tallymere::Printing
