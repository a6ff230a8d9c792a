#include "base/calchelpers.h"

#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "base/texts.h"
#include "engine/linetext.h"

#include <cmath>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

// Scaled values beyond this have no whole part in 64 bits, and noise below seven decimals cannot be taken out.
constexpr long double wholeLimit = 9223372036854775807.0L;

// To the nearest whole number, half away from zero; the halfway point is tested by adding a half, not by looking at
// the fraction, so that what the addition rounds counts as well.
long double nearestWhole(long double value)
{
    const long double whole = std::trunc(value);
    if (value > 0)
        return std::trunc(value + 0.5L) > whole ? whole + 1 : whole;
    return std::trunc(value - 0.5L) < whole ? whole - 1 : whole;
}

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

long double withoutNoise(long double value)
{
    constexpr long double scale = 10'000'000.0L;
    const long double scaled = value * scale;
    if (!(std::fabs(scaled) + 0.5L < wholeLimit))
        return value;
    return nearestWhole(scaled) / scale;
}

long double roundIt(long double value) { return nearestWhole(withoutNoise(value)); }

Money toCents(long double value) { return Money::fromLongDouble(roundIt(value * 100) / 100); }

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

QStringList stringToWords(const QString &text, const QString &separator)
{
    if (separator.isEmpty())
        return {text};
    return text.split(separator);
}

void wordsToString(const QStringList &words, const QString &separator, QString &text)
{
    text.prepend(words.join(separator));
}

void replaceToken(QString &text, const QString &oldToken, const QString &newToken)
{
    QString result;
    wordsToString(stringToWords(text, oldToken), newToken, result);
    text = result;
}

int extractServiceID(const QString &text)
{
    QString piece = text.mid(text.indexOf(u'[') + 1, 3).trimmed();
    if (const qsizetype end = piece.indexOf(u']'); end >= 0 && piece.size() > 1)
        piece = piece.left(end).trimmed();
    if (piece.isEmpty() || piece.front() < u'0' || piece.front() > u'9')
        return 0;
    return integerFromText(piece);
}

} // namespace Tallymere
