#pragma once

#include "engine/filter/filterexpression.h"

#include <vector>

namespace Engine {

// One operation of a filter expression, or one field or constant.
struct FilterExpression::Node
{
    enum class Kind {
        Or,
        And,
        Not,
        Compare,
        Like,
        Contains,
        IsNull,
        Arithmetic,
        Negate,
        Field,
        Number,
        Text,
        Boolean,
        Null
    };

    Kind kind = Kind::Null;
    QString text; // operator, field name or text
    Value value; // of Number and Boolean
    qsizetype position = 0;
    std::vector<std::unique_ptr<Node>> parts;
};

std::unique_ptr<FilterExpression::Node> parseFilter(const QString &expression);

} // namespace Engine
