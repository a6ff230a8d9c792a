#include "engine/filter/filterexpression.h"

#include "engine/filter/containedtext.h"
#include "engine/filter/filterlexer.h"
#include "engine/filter/filternode.h"
#include "engine/store/dialect.h"
#include "engine/values/error.h"
#include "engine/values/linetext.h"

#include <algorithm>
#include <cmath>
#include <span>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

using Node = FilterExpression::Node;

// What a part of an expression is, for deciding what may stand beside it.
enum class Sort { Number, Text, Boolean, Date, DateTime, Null };

struct Part
{
    SqlCondition sql;
    Sort sort = Sort::Null;
    FieldType type = FieldType::Float; // of a field
};

class Translator
{
public:
    Translator(const QString &expression, const Dialect &dialect, const FilterExpression::Columns &columns)
        : m_expression(expression)
        , m_dialect(dialect)
        , m_columns(columns)
    {
    }

    // The node as a condition. "Unknown", of a comparison with an empty field, counts as false everywhere.
    SqlCondition condition(const Node &node) const
    {
        switch (node.kind) {
        case Node::Kind::Or:
            return chain(node, " OR "_L1);
        case Node::Kind::And:
            return chain(node, " AND "_L1);
        case Node::Kind::Not:
            return wrapped("("_L1, condition(*node.parts[0]), ") IS NOT TRUE"_L1);
        case Node::Kind::Compare:
            return comparison(node);
        case Node::Kind::Like:
            return like(node);
        case Node::Kind::Contains:
            return contained(node);
        case Node::Kind::IsNull:
            return wrapped({}, operand(*node.parts[0]).sql, " IS NULL"_L1);
        case Node::Kind::Boolean:
            return {node.value.toBool() ? u"1=1"_s : u"1=0"_s, {}};
        case Node::Kind::Field:
            return booleanField(node);
        default:
            refuse(node, Texts::tr("a condition was expected."));
        }
    }

private:
    [[noreturn]] void refuse(const Node &node, const QString &why) const
    {
        refuseFilter(m_expression, node.position, why);
    }

    [[noreturn]] void refuseKinds(const Node &node) const
    {
        refuse(node, Texts::tr("these two do not compare with each other."));
    }

    static SqlCondition wrapped(QLatin1StringView before, const SqlCondition &inside, QLatin1StringView after)
    {
        return {before + inside.text + after, inside.parameters};
    }

    static SqlCondition joined(const SqlCondition &left, const QString &between, const SqlCondition &right)
    {
        return {left.text + between + right.text, left.parameters + right.parameters};
    }

    SqlCondition chain(const Node &node, QLatin1StringView between) const
    {
        SqlCondition all = condition(*node.parts[0]);
        for (size_t i = 1; i < node.parts.size(); ++i)
            all = joined(all, between, condition(*node.parts[i]));
        return wrapped("("_L1, all, ")"_L1);
    }

    SqlCondition booleanField(const Node &node) const
    {
        const Part field = operand(node);
        if (field.sort != Sort::Boolean)
            refuse(node, Texts::tr("%1 is no condition by itself.").arg(node.text));
        return {field.sql.text + " = ?"_L1, {true}};
    }

    Part field(const Node &node) const
    {
        const auto column = m_columns(node.text);
        if (!column)
            refuse(node, Texts::tr("there is no field \"%1\".").arg(node.text));
        Part part{{column->sql, {}}, Sort::Number, column->type};
        switch (column->type) {
        case FieldType::Text:
        case FieldType::Memo:
            part.sort = Sort::Text;
            break;
        case FieldType::Boolean:
            part.sort = Sort::Boolean;
            break;
        case FieldType::Date:
            part.sort = Sort::Date;
            break;
        case FieldType::DateTime:
            part.sort = Sort::DateTime;
            break;
        default:
            break;
        }
        return part;
    }

    static SqlCondition number(double value)
    {
        const bool whole = std::floor(value) == value && std::fabs(value) < 9e15;
        if (whole)
            return {u"CAST(? AS BIGINT)"_s, {static_cast<qint64>(value)}};
        return {u"CAST(? AS DOUBLE PRECISION)"_s, {value}};
    }

    Part operand(const Node &node) const
    {
        switch (node.kind) {
        case Node::Kind::Field:
            return field(node);
        case Node::Kind::Number:
            return {number(node.value.toDouble()), Sort::Number};
        case Node::Kind::Text:
            return {{u"CAST(? AS TEXT)"_s, {node.text}}, Sort::Text};
        case Node::Kind::Boolean:
            return {{u"CAST(? AS BOOLEAN)"_s, {node.value}}, Sort::Boolean};
        case Node::Kind::Null:
            return {{u"NULL"_s, {}}, Sort::Null};
        case Node::Kind::Arithmetic:
            return {arithmetic(node), Sort::Number};
        case Node::Kind::Negate:
            return {wrapped("(-"_L1, arithmeticOperand(*node.parts[0]), ")"_L1), Sort::Number};
        default:
            refuse(node, Texts::tr("a value was expected, not a condition."));
        }
    }

    // A server refuses a floating result that is too large or too small, where a file goes on with infinity or nothing. So
    // figures take part that the books can hold, and no more of them than can come to such a result: what is smaller
    // counts as nothing, what is larger as empty.
    static constexpr double smallest = 1e-12;
    static constexpr double largest = 1e15;
    static constexpr int mostFigures = 20;

    static int figuresIn(const Node &node)
    {
        const bool isMade = node.kind == Node::Kind::Arithmetic || node.kind == Node::Kind::Negate;
        int figures = isMade ? 0 : 1;
        for (const auto &part : isMade ? std::span(node.parts) : std::span<const std::unique_ptr<Node>>())
            figures += figuresIn(*part);
        return figures;
    }

    SqlCondition constantFigure(const Node &node) const
    {
        const double value = node.value.toDouble();
        if (std::fabs(value) > largest)
            refuse(node, Texts::tr("this number is too large to calculate with."));
        return {u"CAST(? AS DOUBLE PRECISION)"_s, {std::fabs(value) < smallest ? 0.0 : value}};
    }

    // Whole numbers of the stores would overflow and would divide without a remainder.
    SqlCondition arithmeticOperand(const Node &node) const
    {
        const Part part = operand(node);
        if (part.sort != Sort::Number)
            refuse(node, Texts::tr("a number was expected."));
        if (node.kind == Node::Kind::Number)
            return constantFigure(node);
        if (node.kind != Node::Kind::Field)
            return part.sql;
        const QString figure = u"CAST(%1 AS DOUBLE PRECISION)"_s.arg(part.sql.text);
        if (isWholeNumber(part.type))
            return {figure, {}};
        return {u"CASE WHEN abs(%1) < 1e-12 THEN 0e0 WHEN abs(%1) <= 1e15 THEN %1 END"_s.arg(figure), {}};
    }

    SqlCondition arithmetic(const Node &node) const
    {
        if (figuresIn(node) > mostFigures)
            refuse(node, Texts::tr("too many figures to calculate with."));
        const SqlCondition left = arithmeticOperand(*node.parts[0]);
        SqlCondition right = arithmeticOperand(*node.parts[1]);
        if (node.text == "/"_L1)
            right = wrapped("NULLIF("_L1, right, ", 0)"_L1);
        return wrapped("("_L1, joined(left, u' ' + node.text + u' ', right), ")"_L1);
    }

    // A constant beside a field of another sort becomes the field's sort where it can be read so.
    Part adapted(const Node &node, const Part &part, const Part &beside) const
    {
        const bool toDate = beside.sort == Sort::Date || beside.sort == Sort::DateTime;
        if (node.kind == Node::Kind::Text && toDate) {
            const bool dateOnly = beside.sort == Sort::Date;
            const QDateTime moment = Value(node.text).toDateTime();
            if (!moment.isValid())
                refuse(node, Texts::tr("'%1' is not a date (YYYY-MM-DD).").arg(excerpt(node.text)));
            const Value value = dateOnly ? Value(moment.date()) : Value(moment);
            return {{u"?"_s, {value}}, beside.sort};
        }
        if (node.kind == Node::Kind::Number && beside.sort == Sort::Boolean)
            return {{u"CAST(? AS BOOLEAN)"_s, {node.value.toBool()}}, Sort::Boolean};
        if (node.kind == Node::Kind::Boolean && beside.sort == Sort::Number)
            return {number(node.value.toDouble()), Sort::Number};
        return part;
    }

    SqlCondition nullComparison(const Node &node, const Part &tested) const
    {
        if (node.text == "="_L1)
            return wrapped({}, tested.sql, " IS NULL"_L1);
        if (node.text == "<>"_L1)
            return wrapped({}, tested.sql, " IS NOT NULL"_L1);
        refuse(node, Texts::tr("null compares with = and <> only."));
    }

    SqlCondition comparison(const Node &node) const
    {
        const Node &leftNode = *node.parts[0];
        const Node &rightNode = *node.parts[1];
        const Part leftRead = operand(leftNode);
        const Part rightRead = operand(rightNode);
        if (rightRead.sort == Sort::Null)
            return nullComparison(node, leftRead);
        if (leftRead.sort == Sort::Null)
            return nullComparison(node, rightRead);
        const Part left = adapted(leftNode, leftRead, rightRead);
        const Part right = adapted(rightNode, rightRead, leftRead);
        if (left.sort != right.sort)
            refuseKinds(node);
        if (node.text == "<>"_L1)
            return wrapped("("_L1, joined(left.sql, u" = "_s, right.sql), ") IS NOT TRUE"_L1);
        return joined(left.sql, u' ' + node.text + u' ', right.sql);
    }

    // SQLite takes no pattern of more than 50,000 bytes.
    void requireShort(const Node &text, qsizetype length, qsizetype most) const
    {
        if (length > most)
            refuse(text, Texts::tr("the text is too long to look for."));
    }

    SqlCondition like(const Node &node) const
    {
        constexpr qsizetype mostLetters = 10'000; // three bytes each, or three letters
        requireShort(*node.parts[1], node.parts[1]->text.size(), mostLetters);
        const Part tested = operand(*node.parts[0]);
        if (tested.sort != Sort::Text)
            refuse(*node.parts[0], Texts::tr("LIKE needs a text field."));
        return {m_dialect.like(tested.sql.text),
                tested.sql.parameters + QList<Value>{m_dialect.likePattern(node.parts[1]->text)}};
    }

    SqlCondition contained(const Node &node) const
    {
        const Part tested = operand(*node.parts[0]);
        if (tested.sort != Sort::Text)
            refuse(*node.parts[0], Texts::tr("CONTAINS needs a text field."));
        constexpr qsizetype mostBytes = 50'000;
        requireShort(*node.parts[1], containedGlob(node.parts[1]->text).toUtf8().size(), mostBytes);
        return contains(m_dialect, tested.sql, node.parts[1]->text);
    }

    const QString &m_expression;
    const Dialect &m_dialect;
    const FilterExpression::Columns &m_columns;
};

bool isConstant(const Node &node) { return node.kind == Node::Kind::Number || node.kind == Node::Kind::Text; }

std::vector<const Node *> fixing(const Node &node)
{
    std::vector<const Node *> found;
    if (node.kind == Node::Kind::And) {
        for (const auto &part : node.parts)
            std::ranges::copy(fixing(*part), std::back_inserter(found));
    } else if (node.kind == Node::Kind::Compare && node.text == "="_L1 && node.parts[0]->kind == Node::Kind::Field
               && isConstant(*node.parts[1])) {
        found.push_back(&node);
    }
    return found;
}

} // namespace

FilterExpression::FilterExpression(const QString &expression)
    : m_text(expression)
    , m_root(parseFilter(expression))
{
}
FilterExpression::FilterExpression(FilterExpression &&) noexcept = default;
FilterExpression &FilterExpression::operator=(FilterExpression &&) noexcept = default;
FilterExpression::~FilterExpression() = default;

SqlCondition FilterExpression::condition(const Dialect &dialect, const Columns &columns) const
{
    if (!m_root)
        return {};
    SqlCondition condition = Translator(m_text, dialect, columns).condition(*m_root);
    condition.text = u'(' + condition.text + u')';
    return condition;
}

QList<FilterExpression::Fixed> FilterExpression::fixedFields(const Dialect &dialect, const Columns &columns) const
{
    QList<Fixed> fixed;
    for (const Node *node : m_root ? fixing(*m_root) : std::vector<const Node *>())
        fixed.append({node->parts[0]->text, Translator(m_text, dialect, columns).condition(*node)});
    return fixed;
}

} // namespace Engine
