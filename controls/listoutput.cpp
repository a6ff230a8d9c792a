#include "controls/listoutput.h"

#include "base/csvlist.h"
#include "controls/barprogress.h"
#include "controls/filechoice.h"
#include "controls/listcopy.h"
#include "controls/liststatus.h"
#include "controls/screenmetrics.h"
#include "data/utilsinv.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProgressBar>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere {

ListOutput::ListOutput(ScreenContext &context, QWidget &window, ListGrid &grid, ListStatus &status)
    : QObject(&window)
    , m_context(context)
    , m_window(window)
    , m_grid(grid)
    , m_status(status)
{
}

void ListOutput::copyRows()
{
    const QList<RowRange> rows = m_grid.selectedRows();
    if (rows.isEmpty())
        return;
    QString text;
    run([&](Progress &progress) { text = rowsAsText(*m_grid.tableModel(), rows, progress); });
    QGuiApplication::clipboard()->setText(text);
}

void ListOutput::saveCsv(const QString &caption)
{
    const QString file =
        chooseFile(m_context, &m_window, {tr("Save as CSV"), caption + ".csv"_L1, tr("CSV files"), u"csv"_s});
    if (file.isEmpty())
        return;
    const TableModel &model = *m_grid.tableModel();
    run([&](Progress &progress) { saveCsvList(model.dataSet(), model.columns(), file, progress); });
    m_status.say(tr("Saved as %1").arg(QDir::toNativeSeparators(file)));
}

void ListOutput::run(const std::function<void(Progress &)> &work)
{
    m_window.installEventFilter(this);
    m_status.progressBar()->show();
    const auto done = qScopeGuard([this] {
        m_status.progressBar()->hide();
        m_window.removeEventFilter(this);
    });
    const WaitCursor hourglass;
    BarProgress progress(m_status.progressBar());
    work(progress);
}

// While the list is being read the screen cannot go.
bool ListOutput::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return false;
    event->ignore();
    return true;
}

} // namespace Tallymere
