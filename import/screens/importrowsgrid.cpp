#include "import/screens/importrowsgrid.h"

#include "controls/windows/screenmetrics.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int faultColumn = 1;
}

ImportRowsGrid::ImportRowsGrid(const ImportPlan &plan, QWidget *parent)
    : RowsGrid(parent)
{
    setObjectName(u"grdRows"_s);
    setAccessibleName(tr("The rows of the file"));
    QList<GridColumn> columns{{.field = {}, .title = tr("Row"), .width = 60, .alignment = Qt::AlignRight},
                              {.field = {}, .title = tr("What is wrong"), .width = 330, .takesSurplus = true}};
    for (const int column : plan.takenColumns())
        columns.append({.field = {}, .title = plan.title(plan.field(column)), .width = 110});
    setColumns(columns);
    setWantedWidth(faultColumn,
                   scaled(this, columns[faultColumn].width)); // the others make room, and then are scrolled
}

void ImportRowsGrid::showRows(const std::vector<ImportPlan::Row> &rows)
{
    m_faulty.clear();
    std::vector<QStringList> shown;
    for (const ImportPlan::Row &row : rows) {
        m_faulty.push_back(!row.fault.isEmpty());
        QStringList texts{QString::number(row.line), row.fault};
        texts += row.texts;
        while (texts.size() < model()->columnCount())
            texts.append(QString());
        shown.push_back(texts.mid(0, model()->columnCount()));
    }
    setRows(std::move(shown));
    const auto first = std::find(m_faulty.begin(), m_faulty.end(), true);
    if (first != m_faulty.end())
        setCurrentIndex(model()->index(static_cast<int>(first - m_faulty.begin()), 0));
}

bool ImportRowsGrid::isRefused(const QModelIndex &cell) const
{
    const auto row = static_cast<size_t>(cell.row());
    return cell.column() == faultColumn && row < m_faulty.size() && m_faulty[row];
}

} // namespace Tallymere
