#include "engine/values/value.h"

#include "engine/values/error.h"
#include "engine/values/linetext.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

[[noreturn]] void refuse(const Value &value, const char *expected)
{
    raise(ErrorCode::BadValue, Texts::tr("'%1' is not %2").arg(excerpt(value.toText()), Texts::tr(expected)));
}

qint64 truncated(double number)
{
    constexpr double limit = 9223372036854775807.0;
    if (std::isnan(number))
        return 0;
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number <= -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

// The same number without its exponent: "-1.5e+20" as "-150000000000000000000".
QString withoutExponent(const QString &text)
{
    const qsizetype e = text.indexOf(u'e');
    if (e < 0)
        return text; // infinite
    const bool negative = text.startsWith(u'-');
    QString digits = text.mid(negative ? 1 : 0, e - (negative ? 1 : 0));
    digits.remove(u'.');
    const int exponent = text.mid(e + 1).toInt(); // of the first digit
    if (exponent < 0)
        digits.prepend(u"0."_s + QString(-exponent - 1, u'0'));
    else
        digits = digits.leftJustified(exponent + 1, u'0');
    return negative ? u'-' + digits : digits;
}

// The shortest digits that read back the same.
QString numberText(double number)
{
    if (number == 0)
        return u"0"_s;
    const double size = std::fabs(number);
    const bool plain = size >= 1e-6 && size < 1e15;
    std::array<char, 64> buffer{};
    const auto end = plain ? std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed)
                           : std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::scientific);
    const QString text = QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
    return plain ? text : withoutExponent(text);
}

QDateTime parseDateTime(const QString &text)
{
    QDateTime moment = QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss"_s);
    if (!moment.isValid())
        moment = QDateTime::fromString(text, Qt::ISODate);
    if (!moment.isValid()) {
        const QDate day = QDate::fromString(text, Qt::ISODate);
        if (day.isValid())
            moment = QDateTime(day, QTime(0, 0));
    }
    return moment;
}

Value asWhole(const Value &value, qint64 least, qint64 greatest)
{
    const auto *number = std::get_if<double>(&value.storage());
    if (number && !std::isfinite(*number))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a whole number"));
    if (std::holds_alternative<QDate>(value.storage()) || std::holds_alternative<QDateTime>(value.storage()))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a whole number"));
    if (const auto *text = std::get_if<QString>(&value.storage())) {
        bool ok = false;
        text->trimmed().toLongLong(&ok);
        if (!ok)
            refuse(value, QT_TRANSLATE_NOOP("Engine", "a whole number"));
    }
    const qint64 whole = value.toInt64();
    if (whole < least || whole > greatest) {
        raise(ErrorCode::BadValue,
              Texts::tr("'%1' is not within %2 to %3")
                  .arg(excerpt(value.toText()), QString::number(least), QString::number(greatest)));
    }
    return whole;
}

Value asFloat(const Value &value)
{
    if (std::holds_alternative<QDate>(value.storage()) || std::holds_alternative<QDateTime>(value.storage()))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a number"));
    if (const auto *text = std::get_if<QString>(&value.storage())) {
        bool ok = false;
        text->trimmed().toDouble(&ok);
        if (!ok)
            refuse(value, QT_TRANSLATE_NOOP("Engine", "a number"));
    }
    const double number = value.toDouble();
    if (!std::isfinite(number))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a number"));
    return number;
}

Value asBoolean(const Value &value)
{
    const auto *text = std::get_if<QString>(&value.storage());
    if (!text) {
        if (std::holds_alternative<QDate>(value.storage()) || std::holds_alternative<QDateTime>(value.storage()))
            refuse(value, QT_TRANSLATE_NOOP("Engine", "true or false"));
        return value.toBool();
    }
    const QString word = text->trimmed().toLower();
    if (word == "true"_L1 || word == "1"_L1)
        return true;
    if (word == "false"_L1 || word == "0"_L1)
        return false;
    refuse(value, QT_TRANSLATE_NOOP("Engine", "true or false"));
}

// The stores write a year in four digits.
bool isStorable(QDate day) { return day.isValid() && day.year() >= 1 && day.year() <= 9999; }

Value asDate(const Value &value)
{
    const QDate day = value.toDate();
    if (!isStorable(day))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a date (YYYY-MM-DD)"));
    return day;
}

Value asDateTime(const Value &value)
{
    const QDateTime moment = value.toDateTime();
    if (!moment.isValid() || !isStorable(moment.date()))
        refuse(value, QT_TRANSLATE_NOOP("Engine", "a date and time (YYYY-MM-DD HH:MM:SS)"));
    return moment;
}

Value asText(const Value &value)
{
    const QString text = value.toText();
    if (text.contains(QChar(u'\0')) || !text.isValidUtf16()) {
        raise(ErrorCode::BadValue,
              Texts::tr("The text \"%1\" holds a character that cannot be stored.")
                  .arg(excerpt(QString::fromUtf8(text.toUtf8()).remove(QChar(u'\0')))));
    }
    return text;
}

} // namespace

Value::Value(Value &&other) noexcept = default;

bool Value::toBool() const
{
    if (const auto *value = std::get_if<bool>(&m_storage))
        return *value;
    if (const auto *text = std::get_if<QString>(&m_storage))
        return text->trimmed().compare("true"_L1, Qt::CaseInsensitive) == 0 || toInt64() != 0;
    return toDouble() != 0;
}

qint64 Value::toInt64() const
{
    if (const auto *whole = std::get_if<qint64>(&m_storage))
        return *whole;
    if (const auto *number = std::get_if<double>(&m_storage))
        return truncated(*number);
    if (const auto *flag = std::get_if<bool>(&m_storage))
        return *flag ? 1 : 0;
    if (const auto *text = std::get_if<QString>(&m_storage))
        return text->trimmed().toLongLong();
    return 0;
}

double Value::toDouble() const
{
    if (const auto *number = std::get_if<double>(&m_storage))
        return *number;
    if (const auto *text = std::get_if<QString>(&m_storage))
        return text->trimmed().toDouble();
    return static_cast<double>(toInt64());
}

QDate Value::toDate() const
{
    if (const auto *day = std::get_if<QDate>(&m_storage))
        return *day;
    if (const auto *moment = std::get_if<QDateTime>(&m_storage))
        return moment->date();
    if (const auto *text = std::get_if<QString>(&m_storage))
        return parseDateTime(text->trimmed()).date();
    return {};
}

QDateTime Value::toDateTime() const
{
    if (const auto *moment = std::get_if<QDateTime>(&m_storage))
        return *moment;
    if (const auto *day = std::get_if<QDate>(&m_storage))
        return QDateTime(*day, QTime(0, 0));
    if (const auto *text = std::get_if<QString>(&m_storage))
        return parseDateTime(text->trimmed());
    return {};
}

QString Value::toText() const
{
    if (const auto *text = std::get_if<QString>(&m_storage))
        return *text;
    if (const auto *whole = std::get_if<qint64>(&m_storage))
        return QString::number(*whole);
    if (const auto *number = std::get_if<double>(&m_storage))
        return numberText(*number);
    if (const auto *flag = std::get_if<bool>(&m_storage))
        return *flag ? u"true"_s : u"false"_s;
    if (const auto *day = std::get_if<QDate>(&m_storage))
        return day->toString(Qt::ISODate);
    if (const auto *moment = std::get_if<QDateTime>(&m_storage))
        return moment->toString(u"yyyy-MM-dd HH:mm:ss"_s);
    return {};
}

Value Value::as(FieldType type) const
{
    if (isNull())
        return {};
    if (isText(type))
        return asText(*this);
    if (const auto *text = std::get_if<QString>(&m_storage); text && text->trimmed().isEmpty())
        return {};
    switch (type) {
    case FieldType::Integer:
    case FieldType::AutoInc:
        return asWhole(*this, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    case FieldType::SmallInt:
        return asWhole(*this, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
    case FieldType::Float:
    case FieldType::Money:
        return asFloat(*this);
    case FieldType::Boolean:
        return asBoolean(*this);
    case FieldType::Date:
        return asDate(*this);
    case FieldType::DateTime:
        return asDateTime(*this);
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return *this;
}

} // namespace Engine
