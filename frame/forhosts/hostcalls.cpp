#include "frame/forhosts/reportholder.h"
#include "frame/frmtallymeresystem.h"

#include "base/prompts.h"
#include "base/trace.h"

#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

// What a host or a module of its own may call on the main form at any time; nothing here does.

namespace Tallymere {

bool TFormTallymereSystem::securityLogin() { return true; }

bool TFormTallymereSystem::securityAccessible() { return true; }

bool TFormTallymereSystem::connectToDatabase(const QString &, const QString &) { return true; }

bool TFormTallymereSystem::copyFiles(const QString &, const QString &) { return true; }

void TFormTallymereSystem::printReport(ReportHolder &report, bool showPrintDialog)
{
    const QString file = report.templateFile();
    if (!QFileInfo(file).isFile()) {
        m_services.prompts.error(tr("The requested report template file:\r\n%1\r\ncould not be found.").arg(file));
        return;
    }
    report.loadTemplate();
    report.setShowPrintDialog(showPrintDialog);
    qCDebug(trace, "Show Print Dialog setting in PrintReport routine...");
    qCDebug(trace).noquote() << report.objectName() + ".ShowPrintDialog"_L1 << showPrintDialog;
    qCDebug(trace, "About to Print the report...");
    report.printOut(this);
    qCDebug(trace, "Print command just sent!");
}

void TFormTallymereSystem::databaseOptionsEnabled(bool enable)
{
    constexpr qsizetype databaseOptions = 6;
    const QList<QAction *> entries = menuBar()->actions().constFirst()->menu()->actions();
    for (QAction *entry : entries.first(qMin(databaseOptions, entries.size())))
        entry->setEnabled(enable);
    const auto buttons = findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->window() == this) // not those of its screens
            button->setEnabled(enable);
    }
}

} // namespace Tallymere
