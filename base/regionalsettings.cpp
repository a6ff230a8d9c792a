#include "base/regionalsettings.h"

#include "engine/values/userlocale.h"

#include <cstdlib>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The letters of the parts in the order of the format: "dMy", "Mdy", "yMd".
QString partOrder(const QString &format)
{
    if (format.startsWith(u'd', Qt::CaseInsensitive))
        return u"dMy"_s;
    if (format.startsWith(u'y', Qt::CaseInsensitive))
        return u"yMd"_s;
    return u"Mdy"_s;
}

QChar separatorOf(const QString &format)
{
    for (const QChar c : format) {
        if (!c.isLetter())
            return c;
    }
    return {};
}

// Plain digits only: QString::toInt would let signs pass.
int digits(const QString &part)
{
    const QString trimmed = part.trimmed();
    if (trimmed.isEmpty() || trimmed.size() > 4)
        return -1;
    for (const QChar c : trimmed) {
        if (c < u'0' || c > u'9')
            return -1;
    }
    return trimmed.toInt();
}

} // namespace

RegionalSettings RegionalSettings::system()
{
    const Engine::UserLocale user = Engine::userLocale();
    RegionalSettings settings = of(user.locale);
    settings.spellsMonths = user.spellsMonths;
    return settings;
}

RegionalSettings RegionalSettings::of(const QLocale &locale)
{
    RegionalSettings settings;
    settings.locale = locale;
    if (const QString point = settings.locale.decimalPoint(); !point.isEmpty())
        settings.decimalPoint = point.front();
    if (const QString group = settings.locale.groupSeparator(); !group.isEmpty())
        settings.groupSeparator = group.front();

    const QString format = settings.locale.dateFormat(QLocale::ShortFormat);
    const QChar separator = separatorOf(format);
    if (separator.isNull() || separator.isSpace() || format.contains("MMM"_L1))
        return settings;
    settings.shortDateFormat = format;
    settings.dateSeparator = separator;
    return settings;
}

QDate RegionalSettings::readDate(const QString &text) const
{
    const QStringList parts = text.trimmed().split(dateSeparator);
    if (parts.size() != 3)
        return {};

    const QString order = partOrder(shortDateFormat);
    const qsizetype yearAt = order.indexOf(u'y');
    int year = digits(parts[yearAt]);
    if (year < 0)
        return {}; // which would be one before Christ
    if (parts[yearAt].trimmed().size() <= 2)
        year += 1900;
    return QDate(year, digits(parts[order.indexOf(u'M')]), digits(parts[order.indexOf(u'd')]));
}

QDate RegionalSettings::readDayAndMonth(const QString &text, QDate nearestTo) const
{
    QStringList parts = text.trimmed().split(dateSeparator);
    QString order = partOrder(shortDateFormat);
    const qsizetype yearAt = order.indexOf(u'y');
    if (parts.size() == 3 && parts[yearAt].trimmed().isEmpty())
        parts.removeAt(yearAt); // as a mask leaves it
    if (parts.size() != 2)
        return {};
    order.remove(yearAt, 1);
    const int month = digits(parts[order.indexOf(u'M')]);
    const int day = digits(parts[order.indexOf(u'd')]);
    constexpr int mostYears = 8; // between two leap days
    QDate nearest;
    for (int year = nearestTo.year() - mostYears; year <= nearestTo.year() + mostYears; ++year) {
        const QDate date(year, month, day);
        if (date.isValid()
            && (!nearest.isValid() || std::abs(date.daysTo(nearestTo)) < std::abs(nearest.daysTo(nearestTo))))
            nearest = date;
    }
    return nearest;
}

QString RegionalSettings::shortDatePattern(int yearDigits) const
{
    QStringList parts;
    for (const QChar part : partOrder(shortDateFormat))
        parts << QString(part == u'y' ? yearDigits : 2, part.toLower());
    return parts.join(dateSeparator);
}

QString RegionalSettings::shortDate(QDate date, int yearDigits) const
{
    if (!date.isValid())
        return {};
    QStringList parts;
    for (const QChar part : partOrder(shortDateFormat)) {
        const int number = part == u'd' ? date.day() : part == u'M' ? date.month() : date.year();
        const QString padded = u"%1"_s.arg(number, part == u'y' ? 4 : 2, 10, '0'_L1);
        parts << (part == u'y' ? padded.right(yearDigits) : padded);
    }
    return parts.join(dateSeparator);
}

} // namespace Tallymere
