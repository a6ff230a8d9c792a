#include "reports/reportlist.h"

#include "base/ruleerror.h"
#include "reports/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::ReportList {

namespace {

const QList<ReportDescription> &described()
{
    static const QList<ReportDescription> reports =
        valueReports() + perpetualReports() + listReports() + forms() + stockReports() + costReports();
    return reports;
}

} // namespace

const QList<ReportDescription> &all()
{
    static const QList<ReportDescription> reports = [] {
        QList<ReportDescription> shown = described();
        shown.removeIf([](const ReportDescription &report) { return !report.rows; });
        return shown;
    }();
    return reports;
}

const ReportDescription *find(const QString &text)
{
    const auto found = std::ranges::find_if(all(), [&](const ReportDescription &report) {
        return report.listText.compare(text, Qt::CaseInsensitive) == 0
            || report.name.compare(text, Qt::CaseInsensitive) == 0;
    });
    return found == all().cend() ? nullptr : &*found;
}

const ReportDescription &require(const QString &text)
{
    if (const ReportDescription *report = find(text))
        return *report;
    throw RuleError(ReportsTexts::tr("There is no report %1").arg(text));
}

const QList<const ReportDescription *> &offered()
{
    static const QList<const ReportDescription *> list = [] {
        QList<const ReportDescription *> reports;
        for (const ReportDescription &report : described())
            if (report.inWizard)
                reports.append(&report);
        return reports;
    }();
    return list;
}

QString nothingToShow(const ReportDescription &report)
{
    return ReportsTexts::tr("The report '%1' has nothing to show yet.").arg(report.listText);
}

} // namespace Tallymere::ReportList
