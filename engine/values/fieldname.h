#pragma once

#include "engine/values/layout.h"

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

} // namespace Engine
