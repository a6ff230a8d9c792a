#pragma once

#include "engine/values/money.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <variant>

namespace Engine {

// What a field can hold. Money is a floating value in the stores; AutoInc is given by the store on insert.
enum class FieldType { Integer, SmallInt, AutoInc, Float, Money, Boolean, Date, DateTime, Text, Memo };

constexpr bool isWholeNumber(FieldType type)
{
    return type == FieldType::Integer || type == FieldType::SmallInt || type == FieldType::AutoInc;
}
constexpr bool isText(FieldType type) { return type == FieldType::Text || type == FieldType::Memo; }

// One value of a field, which may be null. Reading a null as a number gives 0, as text "", as a Boolean false and
// as a date an invalid date; no reader ever throws for a null.
class Value
{
public:
    using Storage = std::variant<std::monostate, bool, qint64, double, QString, QDate, QDateTime>;

    Value() = default;
    Value(const Value &) = default;
    Value(Value &&other) noexcept; // not inline: g++ 12 would warn of the alternatives that are not held
    Value &operator=(const Value &) = default;
    Value &operator=(Value &&) = default;
    ~Value() = default;
    Value(bool value)
        : m_storage(value)
    {
    }
    Value(int value)
        : m_storage(static_cast<qint64>(value))
    {
    }
    Value(qint64 value)
        : m_storage(value)
    {
    }
    Value(double value)
        : m_storage(value)
    {
    }
    Value(Money value)
        : m_storage(value.toDouble())
    {
    }
    Value(QString value)
        : m_storage(std::move(value))
    {
    }
    Value(QLatin1StringView value)
        : m_storage(QString(value))
    {
    }
    Value(const char *) = delete;
    Value(QDate value)
    {
        if (value.isValid())
            m_storage = value;
    }
    Value(const QDateTime &value)
    {
        if (value.isValid())
            m_storage = value;
    }

    bool isNull() const { return std::holds_alternative<std::monostate>(m_storage); }
    const Storage &storage() const { return m_storage; }

    bool toBool() const;
    int toInt() const { return static_cast<int>(toInt64()); }
    qint64 toInt64() const; // a double is truncated towards zero; text is read as a whole number, else 0
    double toDouble() const;
    Money toMoney() const { return Money::fromDouble(toDouble()); }
    QDate toDate() const;
    QDateTime toDateTime() const;

    // Numbers with the shortest digits that read back the same, dates YYYY-MM-DD, Booleans true/false.
    QString toText() const;

    // The value as the given type: numbers widen and narrow, text is parsed. What does not fit the type (text that
    // is no number, 40000 for SmallInt, infinity, a year beyond 9999, a text with U+0000) throws EngineError with
    // code BadValue.
    Value as(FieldType type) const;

    friend bool operator==(const Value &, const Value &) = default;

private:
    Storage m_storage;
};

} // namespace Engine
