#include "reports/screens/reportways.h"

#include "controls/screens/dialogscreen.h"
#include "controls/windows/printerneeded.h"
#include "printing/reportcsv.h"
#include "printing/reportoutput.h"
#include "reports/makereport.h"
#include "reports/screens/reportfiles.h"
#include "reports/screens/showreport.h"

#include <QMenu>
#include <QPushButton>

namespace Tallymere {

ReportWays::ReportWays(ScreenContext &context, DialogScreen &dialog, QPushButton &save, QPushButton &onScreen,
                       Ask ask)
    : m_context(context)
    , m_dialog(dialog)
    , m_save(save)
    , m_onScreen(onScreen)
    , m_ask(std::move(ask))
{
    auto *menu = new QMenu(&save);
    save.setMenu(menu);
    connectGuarded(menu->addAction(tr("&PDF...")), &QAction::triggered, this, &ReportWays::savePdf);
    connectGuarded(menu->addAction(tr("&CSV...")), &QAction::triggered, this, &ReportWays::saveCsv);
    connectGuarded(menu->addAction(tr("&XLSX...")), &QAction::triggered, this, &ReportWays::saveXlsx);
    connectGuarded(&onScreen, &QPushButton::clicked, this, &ReportWays::showOnScreen);
}

const Guard &ReportWays::guard() const { return m_dialog.guard(); }

void ReportWays::offer(bool offered)
{
    m_save.setVisible(offered && m_context.chooseFileToSave);
    m_onScreen.setVisible(offered && !hasPrinter(m_context));
}

void ReportWays::showOnScreen()
{
    const std::optional<WantedReport> wanted = m_ask();
    if (!wanted)
        return;
    showReportOnScreen(m_context, wanted->report, wanted->selection,
                       m_previewParent ? m_previewParent : m_dialog.parentWidget());
    Q_EMIT shown();
}

void ReportWays::savePdf()
{
    const std::optional<WantedReport> wanted = m_ask();
    if (!wanted)
        return;
    save(pdfFile(wanted->report.layout.title), *wanted, [&](const QString &file, Progress &progress) {
        const auto run = runReport(m_context.data, wanted->report, wanted->selection, &progress);
        Printing::makeAllPages(*run, progress);
        Printing::savePdf(*run, file, Printing::allPages(*run), progress);
    });
}

void ReportWays::saveCsv()
{
    const std::optional<WantedReport> wanted = m_ask();
    if (!wanted)
        return;
    save(csvFile(wanted->report.layout.title), *wanted, [&](const QString &file, Progress &progress) {
        const Printing::Report report = makeReport(m_context.data, wanted->report, wanted->selection, &progress);
        Printing::saveReportCsv(report.layout, *report.rows, file, progress, 0, csvTexts(m_context.settings));
    });
}

void ReportWays::saveXlsx()
{
    const std::optional<WantedReport> wanted = m_ask();
    if (!wanted)
        return;
    save(xlsxFile(wanted->report.layout.title), *wanted, [&](const QString &file, Progress &progress) {
        const Printing::Report report = makeReport(m_context.data, wanted->report, wanted->selection, &progress);
        Printing::saveReportXlsx(report.layout, *report.rows, file, progress);
    });
}

void ReportWays::save(const FileChoice &choice, const WantedReport &wanted,
                      const std::function<void(const QString &file, Progress &progress)> &write)
{
    const QString file = saveReportFile(m_context, &m_dialog, choice, write);
    if (file.isEmpty())
        return;
    m_context.prompts.inform(tr("%1 saved as %2").arg(wanted.report.layout.title, file));
    Q_EMIT saved();
}

} // namespace Tallymere
