#include "base/formats.h"

#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "base/texts.h"
#include "base/typeddate.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/linetext.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::FieldFormat;
using Engine::Money;
using Engine::Value;

namespace Tallymere {

namespace {

// The digits of an amount, without a sign: whole part, and from two to mostDecimals decimals.
struct Digits
{
    QString whole;
    QString decimals;
    bool zero = false;
};

Digits digitsOf(Money value, int mostDecimals)
{
    constexpr int leastDecimals = 2;
    constexpr int storedDecimals = 4;
    quint64 count = value.tenThousandths() < 0 ? 0 - static_cast<quint64>(value.tenThousandths())
                                               : static_cast<quint64>(value.tenThousandths());
    quint64 unit = 1;
    for (int i = mostDecimals; i < storedDecimals; ++i)
        unit *= 10;
    count = (count + unit / 2) / unit * unit;

    Digits digits;
    digits.zero = count == 0;
    digits.whole = QString::number(count / 10000);
    digits.decimals = u"%1"_s.arg(count % 10000, storedDecimals, 10, '0'_L1);
    while (digits.decimals.size() > leastDecimals && digits.decimals.endsWith(u'0'))
        digits.decimals.chop(1);
    return digits;
}

QString grouped(QString whole, QChar separator)
{
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
        whole.insert(at, separator);
    return whole;
}

// A number as the stores write it. What is none stands as it is.
QString groupedNumber(const QString &text, const RegionalSettings &settings)
{
    const bool negative = text.startsWith(u'-');
    const qsizetype end = text.indexOf(u'.');
    const QString whole = text.mid(negative ? 1 : 0, end < 0 ? -1 : end - (negative ? 1 : 0));
    if (!std::all_of(whole.begin(), whole.end(), [](QChar c) { return c.isDigit(); }))
        return text;
    const QString decimals = end < 0 ? QString() : settings.decimalPoint + text.mid(end + 1);
    return (negative ? u"-"_s : QString()) + grouped(whole, settings.groupSeparator) + decimals;
}

// Amounts beyond the range of money do occur in damaged data; they must show, not stop a list.
std::optional<Money> moneyOf(const Value &value)
{
    try {
        return value.toMoney();
    } catch (const Engine::AmountTooLarge &) {
        return std::nullopt;
    }
}

Value moneyFromText(const QString &text, const RegionalSettings &settings, const QString &column)
{
    try {
        return Money::fromDouble(numberFromText(text, settings, column));
    } catch (const Engine::AmountTooLarge &) {
        throw RuleError(BaseTexts::tr("'%1' is out of range").arg(Engine::excerpt(text)), column);
    }
}

// Adds to a rule for texts that an empty one is a null.
std::function<Value(const QString &)> nullWhenEmpty(std::function<Value(const QString &)> parse)
{
    return [parse = std::move(parse)](const QString &text) {
        return text.trimmed().isEmpty() ? Value() : parse(text);
    };
}

// Adds to a rule for values that a null is an empty text.
std::function<QString(const Value &)> emptyWhenNull(std::function<QString(const Value &)> show)
{
    return [show = std::move(show)](const Value &value) { return value.isNull() ? QString() : show(value); };
}

} // namespace

QString currencyText(Money value, const RegionalSettings &settings, int mostDecimals)
{
    const Digits digits = digitsOf(value, mostDecimals);
    const QString text = grouped(digits.whole, settings.groupSeparator) + settings.decimalPoint + digits.decimals;
    return value < Money() && !digits.zero ? u'(' + text + u')' : text;
}

QString currencyEditText(Money value, const RegionalSettings &settings, int mostDecimals)
{
    const Digits digits = digitsOf(value, mostDecimals);
    const QString text = digits.whole + settings.decimalPoint + digits.decimals;
    return value < Money() && !digits.zero ? u'-' + text : text;
}

FieldFormat currencyFormat(const RegionalSettings &settings, const QString &column)
{
    FieldFormat format;
    format.display = emptyWhenNull([settings](const Value &value) {
        const std::optional<Money> money = moneyOf(value);
        return money ? currencyText(*money, settings) : groupedNumber(value.toText(), settings);
    });
    format.edit = emptyWhenNull([settings](const Value &value) {
        const std::optional<Money> money = moneyOf(value);
        return money ? currencyEditText(*money, settings) : value.toText();
    });
    format.parse =
        nullWhenEmpty([settings, column](const QString &text) { return moneyFromText(text, settings, column); });
    return format;
}

namespace {

Value toFifteenDigits(const Value &value)
{
    constexpr int digits = 15;
    const auto *number = std::get_if<double>(&value.storage());
    return number ? Value(QString::number(*number, 'g', digits).toDouble()) : value;
}

} // namespace

FieldFormat quantityFormat(const RegionalSettings &settings, const QString &column)
{
    FieldFormat format;
    format.edit = emptyWhenNull(
        [settings](const Value &value) { return value.toText().replace(u'.', settings.decimalPoint); });
    format.display = emptyWhenNull(
        [settings](const Value &value) { return groupedNumber(toFifteenDigits(value).toText(), settings); });
    format.parse = nullWhenEmpty(
        [settings, column](const QString &text) { return Value(numberFromText(text, settings, column)); });
    return format;
}

QString quantityText(double quantity) { return quantityFormat().display(Value(quantity)); }

QString dateText(QDate date, const RegionalSettings &settings)
{
    if (!settings.spellsMonths)
        return settings.shortDate(date, 2);
    return date.isValid() ? settings.locale.toString(date, u"dd MMM yy"_s) : QString();
}

QString distantDateQuestion(QDate date, const RegionalSettings &settings)
{
    return BaseTexts::tr("%1 is more than a year away from today.\nDo you want this date all the same?")
        .arg(settings.spellsMonths ? settings.locale.toString(date, u"d MMM yyyy"_s) : settings.shortDate(date, 4));
}

FieldFormat dateFormat(const RegionalSettings &settings, const QString &column, const std::function<QDate()> &today)
{
    FieldFormat format;
    format.display = [settings](const Value &value) { return dateText(value.toDate(), settings); };
    format.edit = [settings](const Value &value) { return settings.shortDate(value.toDate(), 2); };
    format.parse = [settings, column, today](const QString &text) {
        if (std::none_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); }))
            return Value();
        try {
            return Value(date2000(text.trimmed(), settings, today ? today() : QDate()));
        } catch (const RuleError &error) {
            throw RuleError(error.message(), column);
        }
    };
    return format;
}

int yearOfTwoDigits(int digits) { return digits >= 50 ? 1900 + digits : 2000 + digits; }

std::optional<int> yearFromNumber(qint64 number)
{
    if (number >= 1900 && number <= 9999)
        return static_cast<int>(number);
    if (number < 0 || number > 99)
        return std::nullopt;
    return yearOfTwoDigits(static_cast<int>(number));
}

namespace {

// -1, which is no such year, for a text that is no number.
int yearFromText(const QString &text, const QString &column, NoNumber noNumber)
{
    try {
        return integerFromText(text, column);
    } catch (const RuleError &) {
        if (noNumber == NoNumber::AsNoInteger)
            throw;
        return -1;
    }
}

} // namespace

FieldFormat twoDigitYearFormat(const QString &message, const QString &column, NoNumber noNumber)
{
    FieldFormat format;
    format.edit = emptyWhenNull([](const Value &value) { return value.toText().mid(2, 2); });
    format.parse = nullWhenEmpty([=](const QString &text) {
        const int year = yearFromText(text, column, noNumber);
        if (year < 0 || year > 99)
            throw RuleError(message, column);
        return Value(yearOfTwoDigits(year));
    });
    return format;
}

FieldFormat periodNumberFormat(const QString &label, const QString &column)
{
    FieldFormat format;
    format.parse = nullWhenEmpty([label, column](const QString &text) {
        const int number = integerFromText(text, column);
        if (number >= 1 && number <= 12)
            return Value(number);
        throw RuleError(BaseTexts::tr("%1 is not a valid value for field '%2'. The allowed range is 1 to 12")
                            .arg(QString::number(number), label),
                        column);
    });
    return format;
}

FieldFormat lettersFormat(const QString &label, const QString &column)
{
    FieldFormat format;
    format.parse = nullWhenEmpty([label, column](const QString &text) {
        const QString letters = text.trimmed();
        if (std::all_of(letters.begin(), letters.end(), [](QChar c) { return c.isLetter(); }))
            return Value(letters);
        throw RuleError(BaseTexts::tr("%1 '%2' may hold letters only").arg(label, Engine::excerpt(letters)),
                        column);
    });
    return format;
}

QString periodText(int period, int year) { return u"%1/%2"_s.arg(QString::number(period), QString::number(year)); }

} // namespace Tallymere
