#pragma once

#include "reports/reportdescription.h"

#include <QList>

namespace Tallymere {

// Every report there is. The parts stand in files of their own.
namespace ReportList {

QList<ReportDescription> valueReports();
QList<ReportDescription> perpetualReports();
QList<ReportDescription> listReports();
QList<ReportDescription> forms(); // to write on

const QList<ReportDescription> &all();
// By its list text or its name, without regard to letter case; nullptr when there is none.
const ReportDescription *find(const QString &text);

// What the wizard offers, in its order: all that stand on balances but the one by accounts, and "Cost per Meal", which
// asks for a location and has no report yet (null).
struct Offered
{
    QString listText;
    ReportDescription::Parameters parameters;
    const ReportDescription *report;
};
const QList<Offered> &offered();
QString nothingToShow(const Offered &offered); // what is said where the report is null

} // namespace ReportList

} // namespace Tallymere
