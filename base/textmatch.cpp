#include "base/textmatch.h"

#include <algorithm>

namespace Tallymere {

TextMatch::TextMatch(const QString &typed)
    : m_all(plainText(typed.simplified()))
    , m_words(m_all.split(u' ', Qt::SkipEmptyParts))
{
    const QStringList folded = foldedText(typed.simplified()).split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : folded) {
        if (plainText(word) != word)
            m_accented << word;
    }
}

bool TextMatch::accentsAgree(const QString &text) const
{
    if (m_accented.isEmpty())
        return true;
    const QString folded = foldedText(text);
    return std::all_of(m_accented.begin(), m_accented.end(),
                       [&folded](const QString &word) { return folded.contains(word); });
}

bool TextMatch::isIn(const QString &text) const
{
    const QString plain = plainText(text);
    return std::all_of(m_words.begin(), m_words.end(),
                       [&plain](const QString &word) { return plain.contains(word); })
        && accentsAgree(text);
}

bool TextMatch::beginsWords(QStringView text) const
{
    return std::all_of(m_words.begin(), m_words.end(), [text](const QString &word) {
        for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
            if (at == 0 || !text[at - 1].isLetterOrNumber())
                return true;
        }
        return false;
    });
}

TextMatch::Rank TextMatch::plainRank(QStringView number, QStringView name) const
{
    if (!number.isEmpty() && number == m_all)
        return Rank::Number;
    if (number.startsWith(m_all))
        return Rank::NumberBegins;
    if (name.startsWith(m_all))
        return Rank::NameBegins;
    if (beginsWords(name))
        return Rank::WordsBegin;
    const auto isThere = [&](const QString &word) { return number.contains(word) || name.contains(word); };
    return std::all_of(m_words.begin(), m_words.end(), isThere) ? Rank::Anywhere : Rank::None;
}

TextMatch::Rank TextMatch::rank(const QString &number, const QString &name) const
{
    if (isEmpty() || !accentsAgree(number + u'\n' + name))
        return Rank::None;
    return plainRank(plainText(number), plainText(name));
}

} // namespace Tallymere
