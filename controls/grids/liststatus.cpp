#include "controls/grids/liststatus.h"

#include "base/origintext.h"
#include "controls/grids/figuresline.h"
#include "controls/windows/elidedlabel.h"
#include "controls/windows/originlabel.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/sumlabel.h"
#include "engine/store/database.h"
#include "engine/values/userlocale.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace Tallymere {

ListStatus::ListStatus(ListGrid &grid, QStatusBar &bar)
    : QObject(&bar)
    , m_grid(grid)
    , m_bar(bar)
    , m_rows(new QLabel(&bar))
    , m_search(new ElidedLabel(&bar))
    , m_figures(new FiguresLine(&bar))
{
    m_rows->setObjectName(u"lblRows"_s);
    m_rows->setContentsMargins(0, 0, scaled(&bar, 24), 0);
    m_search->setObjectName(u"lblSearch"_s);
    m_figures->follow(grid);
    bar.addWidget(m_rows);
    bar.addWidget(m_search, 1);
    bar.addWidget(m_figures, 1);
    m_search->hide();

    constexpr int moment = 400; // ms
    m_moment.setSingleShot(true);
    m_moment.setInterval(moment);
    connect(&m_moment, &QTimer::timeout, this, [this] { m_rows->setText(tr("Reading the rows of the list")); });

    const TableModel *model = grid.tableModel();
    connect(model, &QAbstractItemModel::rowsInserted, this, &ListStatus::showRows);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ListStatus::showRows);
    connect(model, &QAbstractItemModel::dataChanged, this, &ListStatus::showRows);
    connect(model, &TableModel::completed, this, &ListStatus::showRows);
    connect(&model->dataSet(), &Engine::DataSet::listChanged, this, &ListStatus::showRows);
    connect(grid.selectionModel(), &QItemSelectionModel::currentChanged, this, &ListStatus::showRows);
    connect(grid.selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListStatus::showRows);
    connect(grid.search(), &ListSearch::changed, this, &ListStatus::showSearch);
    showRows();
}

void ListStatus::say(const QString &text)
{
    constexpr int moment = 5000; // ms
    m_bar.showMessage(text, moment);
}

void ListStatus::setSum(const QString &label, const QString &figure)
{
    if (!m_sum) {
        m_sum = new SumLabel(u"lblSum"_s, &m_bar);
        m_bar.addPermanentWidget(m_sum);
    }
    m_sum->setSum(label, figure);
}

void ListStatus::showOrigin()
{
    Engine::Database &database = m_grid.tableModel()->dataSet().database();
    tellOrigin(m_bar, database.isOpen() ? originText(database.connection().origin()) : QString());
}

// That the rows are being read is said where it takes more than a moment.
void ListStatus::showRows()
{
    showOrigin();
    if (m_grid.tableModel()->isPartial()) {
        m_rows->clear();
        m_moment.start();
    } else {
        m_moment.stop();
        m_rows->setText(rowsText());
    }
}

QString ListStatus::rowsText() const
{
    const TableModel &model = *m_grid.tableModel();
    if (model.hasFailed())
        return {};
    const QLocale locale = Engine::userLocale().locale;
    const int count = model.rowCount();
    const QModelIndex current = m_grid.currentIndex();
    QString text;
    if (count == 0)
        text = tr("No rows");
    else if (count == 1)
        text = tr("1 row");
    else if (current.isValid())
        text = tr("%1 of %2 rows").arg(locale.toString(current.row() + 1), locale.toString(count));
    else
        text = tr("%1 rows").arg(locale.toString(count));
    if (model.dataSet().isFiltered())
        text = tr("%1 (filtered)").arg(text);
    int selected = 0;
    for (const RowRange &range : m_grid.selectedRows())
        selected += range.count();
    return selected > 1 ? tr("%1, %2 selected").arg(text, locale.toString(selected)) : text;
}

void ListStatus::showSearch()
{
    m_bar.clearMessage();
    const ListSearch &search = *m_grid.search();
    const QLocale locale = Engine::userLocale().locale;
    m_search->setVisible(!search.text().isEmpty());
    m_figures->setVisible(search.text().isEmpty()); // both are long
    if (search.text().isEmpty())
        m_search->clear();
    else if (search.isFound())
        m_search->setText(tr("Search: %1").arg(search.text()));
    else if (search.isLooking())
        m_search->setText(tr("Search: %1 (looking, row %2 of %3; Esc stops)")
                              .arg(search.text(), locale.toString(search.looked()),
                                   locale.toString(m_grid.tableModel()->rowCount())));
    else if (m_grid.tableModel()->dataSet().isFiltered())
        m_search->setText(tr("Search: %1 (not found in the filtered rows)").arg(search.text()));
    else
        m_search->setText(tr("Search: %1 (not found)").arg(search.text()));
}

} // namespace Tallymere
