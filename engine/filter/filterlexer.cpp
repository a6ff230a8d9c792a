#include "engine/filter/filterlexer.h"

#include "engine/values/error.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Engine {

void refuseFilter(const QString &expression, qsizetype position, const QString &why)
{
    constexpr qsizetype shown = 200;
    const QString quoted = expression.size() > shown ? expression.left(shown) + u"..."_s : expression;
    raise(
        ErrorCode::BadExpression,
        Texts::tr("The expression %1 cannot be used. Position %2: %3").arg(quoted, QString::number(position), why));
}

namespace {

class Lexer
{
public:
    explicit Lexer(const QString &text)
        : m_text(text)
    {
    }

    QList<FilterToken> run()
    {
        QList<FilterToken> tokens;
        do {
            tokens << next();
        } while (tokens.last().kind != FilterToken::Kind::End);
        return tokens;
    }

private:
    static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }
    static bool startsName(QChar c) { return c.isLetter() || c == u'_'; }
    QChar at(qsizetype index) const { return index < m_text.size() ? m_text[index] : QChar(); }

    FilterToken token(FilterToken::Kind kind, const QString &text, qsizetype start) const
    {
        return {kind, text, start + 1};
    }

    FilterToken next()
    {
        while (at(m_at).isSpace())
            ++m_at;
        if (m_at >= m_text.size())
            return token(FilterToken::Kind::End, {}, m_at);
        const QChar c = m_text[m_at];
        if (c == u'\'')
            return quoted(FilterToken::Kind::Text, c);
        if (c == u'"')
            return quoted(FilterToken::Kind::Name, c);
        if (isDigit(c) || (c == u'.' && isDigit(at(m_at + 1))))
            return number();
        if (startsName(c))
            return name();
        return symbol();
    }

    FilterToken quoted(FilterToken::Kind kind, QChar quote)
    {
        const qsizetype start = m_at++;
        QString text;
        for (; m_at < m_text.size(); ++m_at) {
            if (m_text[m_at] != quote) {
                text += m_text[m_at];
                continue;
            }
            if (at(++m_at) != quote)
                return token(kind, text, start);
            text += quote;
        }
        refuseFilter(m_text, start + 1, Texts::tr("this quote is not closed."));
    }

    void skipDigits()
    {
        while (isDigit(at(m_at)))
            ++m_at;
    }

    FilterToken number()
    {
        const qsizetype start = m_at;
        skipDigits();
        if (at(m_at) == u'.') {
            ++m_at;
            skipDigits();
        }
        const bool sign = at(m_at + 1) == u'-' || at(m_at + 1) == u'+';
        if (at(m_at).toLower() == u'e' && isDigit(at(m_at + (sign ? 2 : 1)))) {
            m_at += sign ? 2 : 1;
            skipDigits();
        }
        return token(FilterToken::Kind::Number, m_text.mid(start, m_at - start), start);
    }

    FilterToken name()
    {
        static const QStringList words{u"AND"_s, u"OR"_s,   u"NOT"_s,  u"LIKE"_s, u"CONTAINS"_s,
                                       u"IS"_s,  u"NULL"_s, u"TRUE"_s, u"FALSE"_s};
        const qsizetype start = m_at;
        while (startsName(at(m_at)) || isDigit(at(m_at)))
            ++m_at;
        const QString text = m_text.mid(start, m_at - start);
        if (words.contains(text, Qt::CaseInsensitive))
            return token(FilterToken::Kind::Word, text.toUpper(), start);
        return token(FilterToken::Kind::Name, text, start);
    }

    FilterToken symbol()
    {
        const qsizetype start = m_at;
        const QString two = m_text.mid(start, 2);
        if (two == "<>"_L1 || two == "<="_L1 || two == ">="_L1) {
            m_at += 2;
            return token(FilterToken::Kind::Symbol, two, start);
        }
        const QChar c = m_text[m_at++];
        if (!"=<>+-*/()"_L1.contains(c)) {
            refuseFilter(m_text, start + 1, Texts::tr("\"%1\" has no meaning here.").arg(c));
        }
        return token(FilterToken::Kind::Symbol, QString(c), start);
    }

    const QString &m_text;
    qsizetype m_at = 0;
};

} // namespace

QList<FilterToken> filterTokens(const QString &expression) { return Lexer(expression).run(); }

} // namespace Engine
