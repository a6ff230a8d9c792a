#pragma once

#include <QString>
#include <QStringList>

// For hosts and for modules of theirs, which may call these at any time; nothing here does. They keep no state.

namespace Tallymere {

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
