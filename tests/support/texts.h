#pragma once

#include <gtest/gtest.h>
#include <ostream>
#include <QDate>
#include <QString>
#include <QStringList>

// How GoogleTest shows Qt's values when a comparison fails.
inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QDate &date, std::ostream *out) { *out << date.toString(Qt::ISODate).toStdString(); }

// What EXPECT_TRUE is given to see a part of a text; a failure shows all of it.
inline testing::AssertionResult shownAs(bool isSo, const QString &text)
{
    return (isSo ? testing::AssertionSuccess() : testing::AssertionFailure()) << '"' << text.toStdString() << '"';
}
inline auto has(const QString &text, const QString &part) { return shownAs(text.contains(part), text); }
inline auto begins(const QString &text, const QString &part) { return shownAs(text.startsWith(part), text); }
inline auto ends(const QString &text, const QString &part) { return shownAs(text.endsWith(part), text); }
