#pragma once

#include "base/regionalsettings.h"

#include <QDate>
#include <QString>

namespace Tallymere {

// Reads a short date and settles its century so that two-digit years fall between 1950 and 2049: years read as 1900
// to 1949 are moved up by 100, from 2051 on down by 100. With today given, day and month alone are the date that lies
// nearest to it. Throws RuleError for a text that is no date, which says how one is written.
QDate date2000(const QString &text, const RegionalSettings &settings = RegionalSettings::system(), QDate today = {},
               int yearDigits = 2);

// Whether a date is so far away that it may be a slip.
bool isMoreThanAYearAway(QDate date, QDate today);

} // namespace Tallymere
