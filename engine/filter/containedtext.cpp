#include "engine/filter/containedtext.h"

#include "engine/store/dialect.h"
#include "engine/values/foldedtext.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// By a letter that is folded, those that it stands for.
using Letters = QHash<QChar, QString>;

// Latin to Armenian, Latin and Greek with further accents, and the wide forms of Latin.
Letters lettersBy(QString (*folding)(const QString &))
{
    Letters letters;
    for (const auto &[first, last] :
         {std::pair(0x41, 0x58f), std::pair(0x1e00, 0x1fff), std::pair(0xff21, 0xff5a)}) {
        for (int code = first; code <= last; ++code) {
            const QChar letter(code);
            const QString folded = letter.isLetter() ? folding(letter) : QString();
            if (folded.size() == 1)
                letters[folded.front()] += letter;
        }
    }
    return letters;
}

// What a letter that was typed stands for; empty for what is no letter of these alphabets.
QString standsFor(QChar letter)
{
    static const Letters plain = lettersBy(plainText);
    static const Letters folded = lettersBy(foldedText);
    const bool hasAccent = plainText(letter) != foldedText(letter);
    const QString key = foldedText(letter);
    return key.size() == 1 ? (hasAccent ? folded : plain).value(key.front()) : QString();
}

QString globOf(QChar letter)
{
    return QStringView(u"*?[").contains(letter) ? u'[' + QString(letter) + u']' : QString(letter);
}

QString expressionOf(QChar letter)
{
    const bool isSign = letter.unicode() < 0x80 && !letter.isLetterOrNumber() && letter != u' ';
    return isSign ? u'\\' + QString(letter) : QString(letter);
}

QString pattern(const QString &text, QString (*ofSign)(QChar))
{
    QString pattern;
    for (const QChar letter : text.normalized(QString::NormalizationForm_C)) {
        const QString letters = standsFor(letter);
        pattern += letters.isEmpty() ? ofSign(letter) : u'[' + letters + u']';
    }
    return pattern;
}

} // namespace

QString containedGlob(const QString &text) { return u'*' + pattern(text, globOf) + u'*'; }

SqlCondition contains(const Dialect &dialect, const SqlCondition &column, const QString &text)
{
    const QString wanted = dialect.variant(containedGlob(text), pattern(text, expressionOf));
    return {column.text + dialect.variant(u" GLOB ?"_s, u" ~ ?"_s), column.parameters + QList<Value>{wanted}};
}

} // namespace Engine
