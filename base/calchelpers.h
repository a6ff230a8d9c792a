#pragma once

#include "base/regionalsettings.h"
#include "engine/money.h"

#include <QDate>
#include <QString>
#include <QStringList>

// Small calculations that all screens and rules share, kept whole: some have no caller yet. They keep no state.

namespace Tallymere {

// The rounding rule: to a whole number, half away from zero, after noise below seven decimals has been taken out
// (2.4999999996 counts as 2.5 and gives 3). Scale before and after the call for other precisions.
long double roundIt(long double value);
// The first half of that rule: to seven decimals. Sums and differences of quantities have noise beyond them.
long double withoutNoise(long double value);

// roundIt(value x 100) / 100 as money: an amount to the cent.
Engine::Money toCents(long double value);

// Reads a short date and settles its century so that two-digit years fall between 1950 and 2049: years read as 1900
// to 1949 are moved up by 100, from 2051 on down by 100. With today given, day and month alone are the date that lies
// nearest to it. Throws RuleError for a text that is no date, which says how one is written.
QDate date2000(const QString &text, const RegionalSettings &settings = RegionalSettings::system(), QDate today = {},
               int yearDigits = 2);

// Whether a date is so far away that it may be a slip.
bool isMoreThanAYearAway(QDate date, QDate today);

// Splits at every separator; pieces may be empty, and an empty text gives one empty piece.
QStringList stringToWords(const QString &text, const QString &separator);
// Puts the joined words in front of what the text held: start with an empty one.
void wordsToString(const QStringList &words, const QString &separator, QString &text);
// Replaces every occurrence, left to right. An empty old token changes nothing.
void replaceToken(QString &text, const QString &oldToken, const QString &newToken);

// The number in square brackets, as in "Lunch [12]". Reads no more than three characters; 0 when they do not begin
// with a digit. Throws RuleError when they do but are no number ("1a").
int extractServiceID(const QString &text);

} // namespace Tallymere
