#include "controls/screens/listoutput.h"

#include "base/csvlist.h"
#include "base/plural.h"
#include "controls/grids/listcopy.h"
#include "controls/grids/liststatus.h"
#include "controls/windows/filechoice.h"
#include "controls/windows/progressbox.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QGuiApplication>
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
    run(tr("Copying..."), [&](Progress &progress) { text = rowsAsText(*m_grid.tableModel(), rows, progress); });
    QGuiApplication::clipboard()->setText(text);
}

void ListOutput::saveCsv(const QString &caption)
{
    save({tr("Save as CSV"), caption + ".csv"_L1, tr("CSV files"), u"csv"_s},
         [&](const QString &file, Progress &progress) {
             const TableModel &model = *m_grid.tableModel();
             saveCsvList(model.dataSet(), model.columns(), file, progress, csvTexts(m_context.settings));
         });
}

void ListOutput::saveXlsx(const QString &caption)
{
    save({tr("Save as XLSX"), caption + ".xlsx"_L1, tr("XLSX files"), u"xlsx"_s},
         [&](const QString &file, Progress &progress) {
             const TableModel &model = *m_grid.tableModel();
             saveXlsxList(model.dataSet(), model.columns(), caption, file, progress);
         });
}

void ListOutput::save(const FileChoice &choice, const std::function<void(const QString &file, Progress &)> &write)
{
    const QString saved = saveToChosenFile(m_context, &m_window, choice, [&](const QString &file) {
        run(tr("Saving %1").arg(QDir::toNativeSeparators(file)),
            [&](Progress &progress) { write(file, progress); });
    });
    if (saved.isEmpty())
        return;
    const QString count = plural(m_grid.tableModel()->dataSet().recordCount(), tr("%n row"), tr("%n rows"));
    m_status.say(tr("%1 saved as %2").arg(count, QDir::toNativeSeparators(saved)));
}

void ListOutput::run(const QString &what, const std::function<void(Progress &)> &work)
{
    m_window.installEventFilter(this);
    const auto done = qScopeGuard([this] { m_window.removeEventFilter(this); });
    ProgressBox progress(&m_window, what);
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
