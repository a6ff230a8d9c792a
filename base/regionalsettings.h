#pragma once

#include <QChar>
#include <QDate>
#include <QLocale>
#include <QString>

namespace Tallymere {

// How the user writes dates and numbers. A plain value: screens take it from the system, tests spell it out.
struct RegionalSettings
{
    QString shortDateFormat = QStringLiteral("M/d/yyyy"); // its first letter decides the order of the parts
    QChar dateSeparator = u'/';
    QChar decimalPoint = u'.';
    QChar groupSeparator = u',';
    QLocale locale = QLocale::c(); // names of months
    bool spellsMonths = true; // in dates that are shown

    // The user's own (Engine::userLocale). Where the short date spells months out or has no separator, the date part of
    // the defaults above stands in.
    static RegionalSettings system();
    static RegionalSettings of(const QLocale &locale);

    // Reads a short date: three numbers in the order of the short date format, joined by the separator. A year of
    // one or two digits is one of the 1900s. Invalid when the text is no date.
    QDate readDate(const QString &text) const;
    // Reads a short date without its year: that of the year in which it lies nearest to a day, of two the one before.
    QDate readDayAndMonth(const QString &text, QDate nearestTo) const;
    // The date in the order and with the separator of readDate(): day and month in two digits, the year in the
    // given number of digits (2 or 4).
    QString shortDate(QDate date, int yearDigits) const;
    QString shortDatePattern(int yearDigits) const; // "mm/dd/yy"
};

} // namespace Tallymere
