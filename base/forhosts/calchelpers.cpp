#include "base/forhosts/calchelpers.h"

#include "base/textnumbers.h"

namespace Tallymere {

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
