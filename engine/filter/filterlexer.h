#pragma once

#include <QList>
#include <QString>

namespace Engine {

// The words of a filter expression.
struct FilterToken
{
    enum class Kind { End, Number, Text, Name, Symbol, Word };
    Kind kind = Kind::End;
    QString text; // of Text without its quotes; of Word (AND, OR, NOT, LIKE, IS, NULL, TRUE, FALSE) in capitals
    qsizetype position = 0; // of its first character, counted from 1

    bool isWord(QLatin1StringView word) const { return kind == Kind::Word && text == word; }
    bool isSymbol(QLatin1StringView symbol) const { return kind == Kind::Symbol && text == symbol; }
};

// Ends with a token of kind End. Throws BadExpression for a character that belongs to nothing and for an open
// quote.
QList<FilterToken> filterTokens(const QString &expression);

// The error of an expression: says where, and what is wrong there.
[[noreturn]] void refuseFilter(const QString &expression, qsizetype position, const QString &why);

} // namespace Engine
