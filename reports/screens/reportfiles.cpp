#include "reports/screens/reportfiles.h"

#include "controls/windows/progressbox.h"
#include "reports/texts.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString fileTitle(QString title) { return title.remove(u'/'); }

} // namespace

FileChoice pdfFile(const QString &title)
{
    return {ReportsTexts::tr("Save as PDF"), fileTitle(title) + ".pdf"_L1, ReportsTexts::tr("PDF files"), u"pdf"_s};
}

FileChoice csvFile(const QString &title)
{
    return {ReportsTexts::tr("Save as CSV"), fileTitle(title) + ".csv"_L1, ReportsTexts::tr("CSV files"), u"csv"_s};
}

FileChoice xlsxFile(const QString &title)
{
    return {ReportsTexts::tr("Save as XLSX"), fileTitle(title) + ".xlsx"_L1, ReportsTexts::tr("XLSX files"),
            u"xlsx"_s};
}

QString saveReportFile(const ScreenContext &context, QWidget *window, const FileChoice &choice,
                       const std::function<void(const QString &file, Progress &progress)> &write)
{
    const QString saved = saveToChosenFile(context, window, choice, [&](const QString &file) {
        ProgressBox progress(window, ReportsTexts::tr("Saving %1").arg(QDir::toNativeSeparators(file)));
        write(file, progress);
    });
    return QDir::toNativeSeparators(saved);
}

} // namespace Tallymere
