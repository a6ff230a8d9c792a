#include "controls/grids/rowsearch.h"

#include "controls/grids/tablemodel.h"

#include <QElapsedTimer>

namespace Tallymere {

namespace {

// Figures with separators, dates with the name of the month.
bool isShownOtherwise(Engine::FieldType type)
{
    return !Engine::isText(type) && type != Engine::FieldType::Boolean;
}

} // namespace

void RowSearch::begin(const TextMatch &what, int row)
{
    m_what = what;
    m_next = row;
    m_left = m_model.rowCount();
}

int RowSearch::percent() const
{
    const int rows = m_model.rowCount();
    return rows > 0 ? static_cast<int>(100LL * (rows - m_left) / rows) : 100;
}

int RowSearch::looked() const { return m_model.rowCount() - m_left; }

std::optional<int> RowSearch::step(qint64 milliseconds)
{
    constexpr int rowsAtOnce = 256;
    QElapsedTimer timer;
    timer.start();
    for (int looked = 0; m_left > 0; ++looked, ++m_next, --m_left) {
        if (looked % rowsAtOnce == 0 && looked > 0 && timer.elapsed() >= milliseconds)
            return std::nullopt;
        m_next = m_next < m_model.rowCount() ? m_next : 0;
        if (isIn(m_next))
            return m_next;
    }
    return std::nullopt;
}

bool RowSearch::isIn(int row) const
{
    const Engine::DataSet &set = m_model.dataSet();
    const Engine::Row &values = set.rowAt(row);
    QString texts;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        if (m_model.columns()[column].setOff)
            continue;
        texts += m_model.shownText(values, column) + u'\n';
        const int number = set.fieldIndex(m_model.columns()[column].field);
        if (number >= 0 && isShownOtherwise(std::as_const(set).field(number).type))
            texts += set.valueIn(values, number).toText() + u'\n';
    }
    return m_what.isIn(texts);
}

} // namespace Tallymere
