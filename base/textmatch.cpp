#include "base/textmatch.h"

#include <algorithm>

namespace Tallymere {

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() < 0x80; });
}

// Those that stand over or under letters of European alphabets. Signs of other scripts are letters of their own.
bool isAccent(QChar letter) { return letter.unicode() >= 0x300 && letter.unicode() <= 0x36f; }

// In capitals first: of "ß" there is none but "SS".
QString decomposed(const QString &text)
{
    return text.toUpper().toCaseFolded().normalized(QString::NormalizationForm_D);
}

} // namespace

QString foldedText(const QString &text)
{
    return isAscii(text) ? text.toLower() : decomposed(text).normalized(QString::NormalizationForm_C);
}

QString plainText(const QString &text)
{
    if (isAscii(text))
        return text.toLower();
    QString plain = decomposed(text);
    plain.removeIf(isAccent);
    return plain.normalized(QString::NormalizationForm_C);
}

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
