#include "reports/screens/showreport.h"

#include "controls/printerneeded.h"
#include "controls/screenmetrics.h"
#include "reports/makereport.h"
#include "reports/screens/preview.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace Tallymere {

namespace {

// Keeps the windows painted while rows are read that the preview cannot be there for.
class PaintedWait final : public Progress
{
public:
    void start(int) override { m_sincePainted.start(); }
    void step() override
    {
        constexpr qint64 paintEvery = 50; // ms
        if (m_sincePainted.elapsed() < paintEvery)
            return;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_sincePainted.restart();
    }
    void finish() override { }

private:
    QElapsedTimer m_sincePainted;
};

} // namespace

void showReport(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                QWidget *parent)
{
    requirePrinter(context);
    showReportOnScreen(context, report, selection, parent);
}

void showReportOnScreen(ScreenContext &context, const ReportDescription &report, const ReportSelection &selection,
                        QWidget *parent)
{
    const WaitCursor hourglass;
    PaintedWait wait;
    auto *preview = new TfrmPreview(context, runReport(context.data, report, selection, &wait), parent);
    preview->offerCsv([&context, report, selection] { return makeReport(context.data, report, selection); });
    preview->show();
}

} // namespace Tallymere
