#include "transactions/entry/pastedcolumns.h"

#include "data/fields.h"
#include "data/fieldtitles.h"
#include "engine/values/foldedtext.h"

#include <algorithm>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr size_t sampleRows = 50;

QString lettersOf(const QString &text)
{
    QString letters = Engine::plainText(text);
    letters.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    return letters;
}

bool hasDigit(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

bool isCurrencySign(QChar c) { return c.category() == QChar::Symbol_Currency; }

class Recognition
{
public:
    Recognition(const DocumentKind &kind, const std::vector<CellRow> &rows, const CellJudges &judges)
        : m_kind(kind)
        , m_rows(rows)
        , m_judges(judges)
    {
        for (qsizetype i = 0; i < columnCountOf(rows); ++i)
            m_found.fields << QString();
    }

    PastedColumns columns()
    {
        if (m_rows.empty())
            return m_found;
        byTitles();
        byItems(Fields::ItemNo, m_judges.isItemNo);
        byItems(Fields::ItemDescription, m_judges.isDescription);
        byNumbers();
        return m_found;
    }

private:
    const QString &quantityField() const { return m_kind.entry.lineColumns.constFirst().field; }

    bool isTaken(const QString &field) const { return m_found.fields.contains(field); }

    QString fieldOfTitle(const QString &cell) const
    {
        const QString letters = lettersOf(cell);
        for (const GridColumn &column : m_kind.entry.lineColumns) {
            QStringList titles = fieldWords(column.field);
            titles << column.title << column.field;
            const bool isCalled = std::any_of(titles.cbegin(), titles.cend(),
                                              [&](const QString &title) { return lettersOf(title) == letters; });
            if (isCalled && !letters.isEmpty())
                return column.field;
        }
        return {};
    }

    // A row that has a title known here, or that without any digit can be no line, is one of titles.
    void byTitles()
    {
        const QStringList &first = m_rows.front().cells;
        const bool isItem = std::any_of(first.cbegin(), first.cend(), [this](const QString &cell) {
            return m_judges.isItemNo(cell) || m_judges.isDescription(cell);
        });
        if (isItem)
            return;
        QStringList fields;
        for (const QString &cell : first)
            fields << fieldOfTitle(cell);
        const bool isCalled =
            std::any_of(fields.cbegin(), fields.cend(), [](const QString &field) { return !field.isEmpty(); });
        m_isCalled = isCalled;
        m_found.hasTitles = isCalled || (m_rows.size() > 1 && std::none_of(first.cbegin(), first.cend(), hasDigit));
        for (qsizetype i = 0; i < std::min(fields.size(), m_found.fields.size()); ++i)
            if (!isTaken(fields[i]))
                m_found.fields[i] = fields[i];
    }

    // What stands in a column below its title, as far as is looked at.
    QStringList sampleOf(qsizetype column) const
    {
        QStringList cells;
        const size_t first = m_found.hasTitles ? 1 : 0;
        for (size_t row = first; row < std::min(m_rows.size(), first + sampleRows); ++row)
            if (const QString cell = m_rows[row].cells.value(column).trimmed(); !cell.isEmpty())
                cells << cell;
        return cells;
    }

    // How many are what is asked, of all; nothing where that is not so of half of them.
    static double shareOf(const QStringList &cells, const std::function<bool(const QString &)> &is)
    {
        const auto count = static_cast<double>(std::count_if(cells.cbegin(), cells.cend(), is));
        return cells.isEmpty() || 2 * count < static_cast<double>(cells.size())
            ? 0
            : count / static_cast<double>(cells.size());
    }

    // Small quantities may be numbers of items as well; but items differ from line to line.
    void byItems(const QString &field, const std::function<bool(const QString &)> &is)
    {
        if (isTaken(field))
            return;
        qsizetype best = -1;
        std::pair<double, qsizetype> most;
        for (qsizetype column = 0; column < m_found.fields.size(); ++column) {
            if (!m_found.fields[column].isEmpty())
                continue;
            const QStringList cells = sampleOf(column);
            const std::pair<double, qsizetype> found(shareOf(cells, is),
                                                     QSet<QString>(cells.cbegin(), cells.cend()).size());
            if (found.first > 0 && found > most) {
                most = found;
                best = column;
            }
        }
        if (best >= 0)
            m_found.fields[best] = field;
    }

    bool looksLikeMoney(qsizetype column) const
    {
        const QStringList cells = sampleOf(column);
        return std::any_of(cells.cbegin(), cells.cend(), [](const QString &cell) {
            return std::any_of(cell.begin(), cell.end(), isCurrencySign);
        });
    }

    bool hasDecimals(qsizetype column) const
    {
        constexpr qsizetype centsWithPoint = 3;
        return shareOf(sampleOf(column),
                       [](const QString &cell) {
                           return cell.size() > centsWithPoint
                               && !cell[cell.size() - centsWithPoint].isLetterOrNumber();
                       })
            == 1;
    }

    // The first of two may be the cost by its looks.
    bool isCostFirst(qsizetype first, qsizetype second) const
    {
        if (looksLikeMoney(first) != looksLikeMoney(second))
            return looksLikeMoney(first);
        return hasDecimals(first) && !hasDecimals(second);
    }

    // Beside titles that are known, one that is not means something else: "Amount" is no unit cost.
    bool mayBeCost(qsizetype column) const
    {
        return !m_isCalled || m_rows.front().cells.value(column).trimmed().isEmpty();
    }

    void byNumbers()
    {
        QList<qsizetype> numbers;
        for (qsizetype column = 0; column < m_found.fields.size(); ++column)
            if (m_found.fields[column].isEmpty() && shareOf(sampleOf(column), m_judges.isNumber) > 0)
                numbers << column;
        const bool takesCost =
            m_kind.files.requiredColumns.contains(Fields::UnitCost) && !isTaken(Fields::UnitCost);
        const bool takesQuantity = !isTaken(quantityField());
        if (takesQuantity && takesCost && numbers.size() > 1 && isCostFirst(numbers[0], numbers[1]))
            std::swap(numbers[0], numbers[1]);
        if (takesQuantity && !numbers.isEmpty())
            m_found.fields[numbers.takeFirst()] = quantityField();
        numbers.removeIf([this](qsizetype column) { return !mayBeCost(column); });
        if (takesCost && !numbers.isEmpty())
            m_found.fields[numbers.takeFirst()] = Fields::UnitCost;
    }

    const DocumentKind &m_kind;
    const std::vector<CellRow> &m_rows;
    const CellJudges &m_judges;
    PastedColumns m_found;
    bool m_isCalled = false; // the first row has a title that is known
};

} // namespace

PastedColumns recognizedColumns(const DocumentKind &kind, const std::vector<CellRow> &rows,
                                const CellJudges &judges)
{
    return Recognition(kind, rows, judges).columns();
}

qsizetype columnCountOf(const std::vector<CellRow> &rows)
{
    qsizetype count = 0;
    for (const CellRow &row : rows) {
        qsizetype width = row.cells.size();
        while (width > count && row.cells[width - 1].trimmed().isEmpty())
            --width;
        count = std::max(count, width);
    }
    return count;
}

} // namespace Tallymere
