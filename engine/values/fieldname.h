#pragma once

#include "engine/values/layout.h"

#include <concepts>
#include <QStringView>

namespace Engine {

// The name of a stored field together with its type, as a constant: what is misspelt does not compile. It stands
// wherever a name is taken as text, and in a layout, which takes the type from it.
template <FieldType Type> class FieldName
{
public:
    template <std::size_t Size>
    consteval FieldName(const char16_t (&name)[Size])
        : m_name(name, Size - 1)
    {
    }

    constexpr operator QStringView() const { return m_name; }
    operator QString() const { return QString::fromRawData(m_name.data(), m_name.size()); } // not a copy
    operator FieldDef() const requires(Type != FieldType::Text) { return {*this, Type}; }
    // A text's length is the table's: the same name may stand for a longer text in another one.
    FieldDef sized(int characters) const requires(Type == FieldType::Text) { return {*this, Type, characters}; }

private:
    QStringView m_name;
};

// A field's name where its value is read as one of these types: a constant of another type does not compile. A name
// that is text by nature, a column's or a description's, is taken as it comes.
template <FieldType... Types> class NameOf
{
public:
    template <FieldType Type>
    constexpr NameOf(const FieldName<Type> &name)
        : m_name(name)
    {
        static_assert(((Type == Types) || ...), "The field holds values of another type");
    }
    template <std::convertible_to<QStringView> Name>
    constexpr NameOf(const Name &name)
        : m_name(name)
    {
    }

    constexpr operator QStringView() const { return m_name; }
    QString toString() const { return m_name.toString(); }

private:
    QStringView m_name;
};

using TextName = NameOf<FieldType::Text, FieldType::Memo>;
using WholeNumberName = NameOf<FieldType::Integer, FieldType::SmallInt, FieldType::AutoInc>;

// Whether code may give a field of the type such a value. One that comes as a Value, as from another field, is fitted
// when it is set.
template <typename Given> constexpr bool canHold(FieldType type)
{
    if constexpr (std::same_as<Given, Value>)
        return true;
    else if constexpr (std::same_as<Given, bool>)
        return type == FieldType::Boolean;
    else if constexpr (std::integral<Given>)
        return isWholeNumber(type) || type == FieldType::Float;
    else if constexpr (std::floating_point<Given>)
        return type == FieldType::Float;
    else if constexpr (std::same_as<Given, Money>)
        return type == FieldType::Money;
    else if constexpr (std::same_as<Given, QDate>)
        return type == FieldType::Date;
    else if constexpr (std::same_as<Given, QDateTime>)
        return type == FieldType::DateTime;
    else
        return isText(type) && std::convertible_to<Given, Value>;
}

} // namespace Engine
