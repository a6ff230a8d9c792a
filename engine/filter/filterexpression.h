#pragma once

#include "engine/store/sqlcondition.h"

#include <functional>
#include <memory>
#include <optional>

namespace Engine {

class Dialect;

// A filter expression, read into a tree. DataSet::setFilter tells what an expression may hold.
//
// Comparisons answer true or false, never "unknown": one with an empty field is false, except "<>", which is the
// opposite of "=". NOT is the opposite of what it stands before. Arithmetic is done in floating point; a division
// by zero is empty.
class FilterExpression
{
public:
    struct Column
    {
        QString sql; // how the field stands in the statement
        FieldType type = FieldType::Integer;
    };
    using Columns = std::function<std::optional<Column>(QStringView name)>;

    // Throws BadExpression with the position for a text that is no expression. A blank text is no condition.
    explicit FilterExpression(const QString &expression);
    FilterExpression(FilterExpression &&) noexcept;
    FilterExpression &operator=(FilterExpression &&) noexcept;
    ~FilterExpression();

    const QString &text() const { return m_text; }
    // Throws BadExpression for a field that there is not and for kinds that do not go together.
    SqlCondition condition(const Dialect &dialect, const Columns &columns) const;
    // The comparisons that give a field one value in all rows that it lets in: both of "A = 1 AND B = 2".
    struct Fixed
    {
        QString field;
        SqlCondition condition;
    };
    QList<Fixed> fixedFields(const Dialect &dialect, const Columns &columns) const;

    struct Node;

private:
    QString m_text;
    std::unique_ptr<Node> m_root;
};

} // namespace Engine
