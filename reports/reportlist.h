#pragma once

#include "reports/reportdescription.h"

#include <QList>

namespace Tallymere {

// The reports. The parts stand in files of their own.
namespace ReportList {

QList<ReportDescription> valueReports();
QList<ReportDescription> perpetualReports();
QList<ReportDescription> listReports();
QList<ReportDescription> forms(); // to write on
QList<ReportDescription> costReports(); // why a cost
QList<ReportDescription> stockReports(); // as it was, and what to buy

const QList<ReportDescription> &all(); // that have something to show
// By its list text or its name, without regard to letter case; nullptr when there is none.
const ReportDescription *find(const QString &text);
const ReportDescription &require(const QString &text); // RuleError when there is none

// What the wizard offers, in its order; some have nothing to show yet.
const QList<const ReportDescription *> &offered();
QString nothingToShow(const ReportDescription &report); // what is said then

} // namespace ReportList

} // namespace Tallymere
