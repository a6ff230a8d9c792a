#include "base/typeddate.h"

#include "base/ruleerror.h"
#include "base/texts.h"
#include "engine/values/linetext.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isLeapDayOfYear00(const QString &text, QChar separator)
{
    const QString monthFirst = u"02"_s + separator + u"29"_s + separator + u"00"_s;
    const QString dayFirst = u"29"_s + separator + u"02"_s + separator + u"00"_s;
    return text == monthFirst || text == dayFirst;
}

QDate readDate(const QString &text, const RegionalSettings &settings)
{
    // The year 1900, as which a bare 00 is read, has no 29 February.
    const bool isLeapDay = isLeapDayOfYear00(text, settings.dateSeparator);
    return settings.readDate(isLeapDay ? text.chopped(2) + u"2000"_s : text);
}

// Not valid where the day does not exist in the other century: 29 February of 2100 and the like.
QDate settledCentury(QDate date)
{
    if (!date.isValid())
        return date;
    int year = date.year();
    if (year >= 1900 && year <= 1949)
        year += 100;
    else if (year >= 2051)
        year -= 100;
    return QDate(year, date.month(), date.day());
}

} // namespace

QDate date2000(const QString &text, const RegionalSettings &settings, QDate today, int yearDigits)
{
    QDate date = settledCentury(readDate(text, settings));
    if (!date.isValid() && today.isValid())
        date = settings.readDayAndMonth(text, today);
    if (!date.isValid())
        throw RuleError(BaseTexts::tr("'%1' is not a valid date. It is entered as %2.")
                            .arg(Engine::excerpt(text), settings.shortDatePattern(yearDigits)));
    return date;
}

bool isMoreThanAYearAway(QDate date, QDate today) { return date < today.addYears(-1) || date > today.addYears(1); }

} // namespace Tallymere
