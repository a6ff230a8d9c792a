#pragma once

#include "engine/values/fieldname.h"

namespace Engine {

// A field and what it is set to, for descriptions: a value of another type than the field's does not compile.
struct FieldValue
{
    template <FieldType Type, typename Given>
    FieldValue(const FieldName<Type> &name, const Given &given)
        : field(name)
        , value(given)
    {
        static_assert(canHold<Given>(Type), "The field holds values of another type");
    }

    QString field;
    Value value;
};

} // namespace Engine
