#include "base/celltext.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool endsCell(QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; }

class CellReader
{
public:
    explicit CellReader(const QString &text)
        : m_text(text)
    {
    }

    std::vector<CellRow> rows()
    {
        std::vector<CellRow> rows;
        for (int number = 1; m_at < m_text.size(); ++number) {
            CellRow row{number, readRow()};
            const bool holdsText = std::any_of(row.cells.cbegin(), row.cells.cend(),
                                               [](const QString &cell) { return !cell.trimmed().isEmpty(); });
            if (holdsText)
                rows.push_back(std::move(row));
        }
        return rows;
    }

private:
    QStringList readRow()
    {
        QStringList cells;
        for (;;) {
            cells << readCell();
            if (m_at >= m_text.size())
                return cells;
            const QChar end = m_text[m_at++];
            if (end == u'\r' && m_at < m_text.size() && m_text[m_at] == u'\n')
                ++m_at;
            if (end != u'\t')
                return cells;
        }
    }

    QString readCell()
    {
        const qsizetype begin = m_at;
        if (m_at < m_text.size() && m_text[m_at] == u'"') {
            QString quoted;
            if (readQuoted(quoted))
                return quoted;
            m_at = begin;
        }
        while (m_at < m_text.size() && !endsCell(m_text[m_at]))
            ++m_at;
        return m_text.mid(begin, m_at - begin);
    }

    // False where the quotes do not enclose the cell: then they are a part of it.
    bool readQuoted(QString &cell)
    {
        for (++m_at;; cell += m_text[m_at++]) {
            const qsizetype quote = m_text.indexOf(u'"', m_at);
            if (quote < 0)
                return false;
            cell += QStringView(m_text).mid(m_at, quote - m_at);
            m_at = quote + 1;
            if (m_at >= m_text.size() || m_text[m_at] != u'"')
                return m_at >= m_text.size() || endsCell(m_text[m_at]);
        }
    }

    const QString &m_text;
    qsizetype m_at = 0;
};

} // namespace

std::vector<CellRow> cellRows(const QString &text) { return CellReader(text).rows(); }

} // namespace Tallymere
