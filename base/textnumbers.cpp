#include "base/textnumbers.h"

#include "base/ruleerror.h"
#include "base/texts.h"
#include "engine/values/linetext.h"

#include <algorithm>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

[[noreturn]] void refuse(const char *message, const QString &text, const QString &column)
{
    throw RuleError(BaseTexts::tr(message).arg(Engine::excerpt(text)), column);
}

QRegularExpression numberPattern(const RegionalSettings &settings)
{
    const QString group = QRegularExpression::escape(settings.groupSeparator);
    const QString point = QRegularExpression::escape(settings.decimalPoint);
    return QRegularExpression(
        u"^[+-]?(?=.*[0-9])([0-9]{1,3}(?:%1[0-9]{3})+|[0-9]*)(?:%2[0-9]*)?$"_s.arg(group, point));
}

} // namespace

QString decimalSignHint(const QString &text, QChar decimalPoint)
{
    static const QRegularExpression figures(u"^[+-]?[.,]*[0-9][0-9.,]*$"_s);
    const QChar other = decimalPoint == u',' ? u'.' : u',';
    if (!text.contains(other) || !figures.match(text.trimmed()).hasMatch())
        return {};
    return u' '
        + BaseTexts::tr("(the decimal sign is '%1', as in %2)").arg(decimalPoint, u"1234"_s + decimalPoint + u'5');
}

int integerFromText(const QString &text, const QString &column)
{
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    if (!ok)
        refuse(QT_TRANSLATE_NOOP("Base", "'%1' is not a whole number"), text, column);
    return number;
}

double numberFromText(const QString &text, const RegionalSettings &settings, const QString &column)
{
    QString plain = text.trimmed();
    bool ok = numberPattern(settings).match(plain).hasMatch();
    plain.remove(settings.groupSeparator);
    plain.replace(settings.decimalPoint, u'.');
    const double number = ok ? plain.toDouble(&ok) : 0;
    if (!ok)
        throw RuleError(BaseTexts::tr("'%1' is not a number").arg(Engine::excerpt(text))
                            + decimalSignHint(text, settings.decimalPoint),
                        column);
    return number + 0.0; // no minus sign at zero
}

QString numberAsTyped(const QString &shown, const RegionalSettings &settings)
{
    constexpr QChar minusSign = u'\u2212';
    QString plain = shown.trimmed();
    const bool isBelowZero = plain.startsWith(u'(') && plain.endsWith(u')');
    if (isBelowZero)
        plain = plain.mid(1, plain.size() - 2);
    plain.removeIf([](QChar c) { return c.category() == QChar::Symbol_Currency; });
    plain = plain.trimmed();
    plain.replace(minusSign, u'-');
    if (settings.groupSeparator.isSpace())
        std::replace_if(
            plain.begin(), plain.end(), [](QChar c) { return c.isSpace(); }, settings.groupSeparator);
    return isBelowZero ? u'-' + plain : plain;
}

} // namespace Tallymere
