#include "reports/reportlist.h"

#include "reports/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::ReportList {

const QList<ReportDescription> &all()
{
    static const QList<ReportDescription> reports = valueReports() + perpetualReports() + listReports() + forms();
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

const QList<Offered> &offered()
{
    static const QList<Offered> list = [] {
        QList<Offered> reports;
        for (const ReportDescription &report : all())
            if (report.isOfBalances() && report.name != "TrptValueByGLAccountItem"_L1)
                reports.append({report.listText, report.parameters, &report});
        constexpr qsizetype costPerMeal = 5;
        reports.insert(costPerMeal, {ReportsTexts::tr("Cost per Meal"), {.location = true}, nullptr});
        return reports;
    }();
    return list;
}

QString nothingToShow(const Offered &offered)
{
    return ReportsTexts::tr("The report '%1' has nothing to show yet.").arg(offered.listText);
}

} // namespace Tallymere::ReportList
