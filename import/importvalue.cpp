#include "import/importvalue.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "engine/values/linetext.h"
#include "engine/values/textsize.h"
#include "engine/values/userlocale.h"
#include "import/texts.h"

#include <cmath>
#include <limits>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Engine::FieldType;
using Engine::Value;

constexpr double largestMoney = 922'337'203'685'477.0;

[[noreturn]] void refuse(const ImportColumn &column, const QString &text, const QString &why)
{
    throw RuleError(u"%1 '%2' %3"_s.arg(column.field, Engine::excerpt(text), why), column.field);
}

bool looksLikeNumber(const QString &text)
{
    static const QRegularExpression shape(
        QRegularExpression::anchoredPattern(u"[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?"_s));
    return shape.match(text).hasMatch();
}

double realNumber(const ImportColumn &column, const QString &text)
{
    static const QStringList infinities = {u"inf"_s, u"infinity"_s};
    if (infinities.contains(text.mid(text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0), Qt::CaseInsensitive))
        refuse(column, text, ImportTexts::tr("is infinite"));
    if (!looksLikeNumber(text))
        refuse(column, text, ImportTexts::tr("is not a number") + decimalSignHint(text, u'.'));
    bool ok = false; // false for a number too large or too small for a double
    const double number = QLocale::c().toDouble(text, &ok);
    if (!ok || (column.type == FieldType::Money && std::abs(number) > largestMoney))
        refuse(column, text, ImportTexts::tr("is out of range"));
    return number + 0.0; // no minus sign at zero
}

qint64 wholeNumber(const ImportColumn &column, const QString &text)
{
    const double number = realNumber(column, text);
    if (number != std::trunc(number))
        refuse(column, text, ImportTexts::tr("is not a whole number"));
    const bool small = column.type == FieldType::SmallInt;
    const double lowest = small ? std::numeric_limits<qint16>::min() : std::numeric_limits<qint32>::min();
    const double highest = small ? std::numeric_limits<qint16>::max() : std::numeric_limits<qint32>::max();
    if (number < lowest || number > highest)
        refuse(column, text, ImportTexts::tr("is out of range"));
    const auto whole = static_cast<qint64>(number);
    const bool limited = column.lowest != 0 || column.highest != 0;
    if (limited && (whole < column.lowest || whole > column.highest)) {
        refuse(column, text,
               ImportTexts::tr("is not within %1 to %2")
                   .arg(QString::number(column.lowest), QString::number(column.highest)));
    }
    return whole;
}

Value year(const ImportColumn &column, const QString &text)
{
    if (const std::optional<int> meant = yearFromNumber(wholeNumber(column, text)))
        return *meant;
    refuse(column, text, ImportTexts::tr("is not a year of two or four digits"));
}

Value period(const ImportColumn &column, const QString &text)
{
    const qint64 number = wholeNumber(column, text);
    if (number < 1 || number > 12)
        refuse(column, text, ImportTexts::tr("is not within %1 to %2").arg(u"1"_s, u"12"_s));
    return number;
}

Value date(const ImportColumn &column, const QString &text)
{
    const QDate date = text.size() == 10 ? QDate::fromString(text, u"yyyy-MM-dd"_s) : QDate();
    if (!date.isValid())
        refuse(column, text, ImportTexts::tr("is not a date (YYYY-MM-DD)"));
    return date;
}

Value boolean(const ImportColumn &column, const QString &text, bool takesYesAndNo)
{
    QStringList yes{u"true"_s};
    QStringList no{u"false"_s};
    if (takesYesAndNo) {
        yes << u"yes"_s << ImportTexts::tr("true") << ImportTexts::tr("yes");
        no << u"no"_s << ImportTexts::tr("false") << ImportTexts::tr("no");
    }
    if (yes.contains(text, Qt::CaseInsensitive))
        return true;
    if (no.contains(text, Qt::CaseInsensitive))
        return false;
    refuse(column, text, ImportTexts::tr("is neither true nor false"));
}

Value textValue(const ImportColumn &column, const QString &text)
{
    if (text.size() > Engine::longestText)
        refuse(column, text,
               ImportTexts::tr("is longer than %1 characters").arg(Engine::groupedCount(Engine::longestText)));
    if (column.type != FieldType::Text)
        return text;
    const QString line = Engine::oneLine(text);
    if (Engine::characterCount(line) > column.size)
        refuse(column, text,
               plural(column.size, ImportTexts::tr("is longer than %n character"),
                      ImportTexts::tr("is longer than %n characters")));
    return line;
}

} // namespace

Value importValue(const ImportColumn &column, const QString &given, ValueReading reading)
{
    // Blanks around a number or a date are nobody's meaning; a text is kept as it stands.
    const bool isText = column.type == FieldType::Text || column.type == FieldType::Memo;
    QString text = isText ? given : given.trimmed();
    if (reading.mayHaveDecimalComma && !isText && !text.contains(u'.') && text.count(u',') == 1)
        text.replace(u',', u'.');
    if (text.isEmpty())
        return {};
    if (column.format == ImportColumn::Format::Year)
        return year(column, text);
    if (column.format == ImportColumn::Format::Period)
        return period(column, text);
    switch (column.type) {
    case FieldType::Integer:
    case FieldType::SmallInt:
    case FieldType::AutoInc:
        return wholeNumber(column, text);
    case FieldType::Float:
        return realNumber(column, text);
    case FieldType::Money:
        return Engine::Money::fromDouble(realNumber(column, text));
    case FieldType::Boolean:
        return boolean(column, text, reading.takesYesAndNo);
    case FieldType::Date:
    case FieldType::DateTime:
        return date(column, text);
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return textValue(column, text);
}

} // namespace Tallymere
