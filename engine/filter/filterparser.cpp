#include "engine/filter/filterlexer.h"
#include "engine/filter/filternode.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

using Node = FilterExpression::Node;
using NodePtr = std::unique_ptr<Node>;
using Kind = FilterToken::Kind;

// Recursive descent. Binding from loose to tight: OR, AND, NOT, comparison, + and -, * and /, sign.
class Parser
{
public:
    explicit Parser(const QString &expression)
        : m_expression(expression)
        , m_tokens(filterTokens(expression))
    {
    }

    NodePtr run()
    {
        if (current().kind == Kind::End)
            return nullptr;
        NodePtr root = disjunction();
        if (current().kind != Kind::End)
            unexpected(Texts::tr("AND, OR or the end"));
        return root;
    }

private:
    // What nobody would write must use up neither the stack here nor the stores' own: SQLite reads a hundred things
    // that wait for their end, and a chain of a thousand.
    static constexpr int deepest = 20;
    static constexpr int longest = 500;
    struct Depth
    {
        explicit Depth(Parser &parser)
            : m_parser(parser)
        {
            if (++m_parser.m_depth > deepest) {
                m_parser.refuseDepth();
            }
        }
        ~Depth() { --m_parser.m_depth; }
        Parser &m_parser;
    };

    const FilterToken &current() const { return m_tokens[m_at]; }
    FilterToken take() { return m_tokens[m_at++]; }

    [[noreturn]] void refuseDepth() const
    {
        refuseFilter(m_expression, current().position, Texts::tr("too many levels of parentheses or operations."));
    }

    [[noreturn]] void unexpected(const QString &wanted) const
    {
        const FilterToken &token = current();
        const QString found = token.kind == Kind::End ? Texts::tr("the end") : u'"' + token.text + u'"';
        refuseFilter(m_expression, token.position,
                     Texts::tr("%1 was expected, but %2 was found.").arg(wanted, found));
    }

    static NodePtr node(Node::Kind kind, const FilterToken &token)
    {
        auto made = std::make_unique<Node>();
        made->kind = kind;
        made->text = token.text;
        made->position = token.position;
        return made;
    }

    NodePtr chain(Node::Kind kind, QLatin1StringView word, NodePtr (Parser::*part)())
    {
        NodePtr first = (this->*part)();
        if (!current().isWord(word))
            return first;
        NodePtr all = node(kind, current());
        all->parts.push_back(std::move(first));
        while (current().isWord(word)) {
            if (all->parts.size() == longest)
                refuseFilter(m_expression, current().position, Texts::tr("too many conditions."));
            take();
            all->parts.push_back((this->*part)());
        }
        return all;
    }

    NodePtr disjunction() { return chain(Node::Kind::Or, "OR"_L1, &Parser::conjunction); }
    NodePtr conjunction() { return chain(Node::Kind::And, "AND"_L1, &Parser::negation); }

    NodePtr negation()
    {
        if (!current().isWord("NOT"_L1))
            return comparison();
        const Depth depth(*this);
        NodePtr made = node(Node::Kind::Not, take());
        made->parts.push_back(negation());
        return made;
    }

    bool atComparison() const
    {
        static const QStringList operators{u"="_s, u"<>"_s, u"<"_s, u">"_s, u"<="_s, u">="_s};
        return current().kind == Kind::Symbol && operators.contains(current().text);
    }

    NodePtr comparison()
    {
        NodePtr left = sum();
        if (atComparison()) {
            NodePtr made = node(Node::Kind::Compare, take());
            made->parts.push_back(std::move(left));
            made->parts.push_back(sum());
            return made;
        }
        if (current().isWord("IS"_L1))
            return nullTest(std::move(left));
        if (isTextTest(current()))
            return textTest(std::move(left));
        if (current().isWord("NOT"_L1) && isTextTest(m_tokens[m_at + 1])) {
            NodePtr made = node(Node::Kind::Not, take());
            made->parts.push_back(textTest(std::move(left)));
            return made;
        }
        return left;
    }

    NodePtr nullTest(NodePtr operand)
    {
        NodePtr test = node(Node::Kind::IsNull, take());
        test->parts.push_back(std::move(operand));
        NodePtr negated;
        if (current().isWord("NOT"_L1))
            negated = node(Node::Kind::Not, take());
        if (!current().isWord("NULL"_L1))
            unexpected(u"NULL"_s);
        take();
        if (!negated)
            return test;
        negated->parts.push_back(std::move(test));
        return negated;
    }

    static bool isTextTest(const FilterToken &token)
    {
        return token.isWord("LIKE"_L1) || token.isWord("CONTAINS"_L1);
    }

    NodePtr textTest(NodePtr operand)
    {
        const bool contains = current().isWord("CONTAINS"_L1);
        NodePtr made = node(contains ? Node::Kind::Contains : Node::Kind::Like, take());
        if (current().kind != Kind::Text)
            unexpected(Texts::tr("a text in quotes"));
        made->parts.push_back(std::move(operand));
        made->parts.push_back(node(Node::Kind::Text, take()));
        return made;
    }

    NodePtr arithmetic(QLatin1StringView one, QLatin1StringView other, NodePtr (Parser::*part)())
    {
        NodePtr left = (this->*part)();
        for (int operations = 0; current().isSymbol(one) || current().isSymbol(other); ++operations) {
            if (operations == deepest)
                refuseDepth();
            NodePtr made = node(Node::Kind::Arithmetic, take());
            made->parts.push_back(std::move(left));
            made->parts.push_back((this->*part)());
            left = std::move(made);
        }
        return left;
    }

    NodePtr sum() { return arithmetic("+"_L1, "-"_L1, &Parser::product); }
    NodePtr product() { return arithmetic("*"_L1, "/"_L1, &Parser::sign); }

    NodePtr sign()
    {
        if (!current().isSymbol("-"_L1))
            return primary();
        const Depth depth(*this);
        const FilterToken minus = take();
        NodePtr operand = sign();
        if (operand->kind == Node::Kind::Number) {
            operand->value = -operand->value.toDouble();
            return operand;
        }
        NodePtr made = node(Node::Kind::Negate, minus);
        made->parts.push_back(std::move(operand));
        return made;
    }

    NodePtr parentheses()
    {
        const Depth depth(*this);
        take();
        NodePtr inside = disjunction();
        if (!current().isSymbol(")"_L1))
            unexpected(u"\")\""_s);
        take();
        return inside;
    }

    NodePtr primary()
    {
        if (current().isSymbol("("_L1))
            return parentheses();
        if (current().kind == Kind::Name)
            return node(Node::Kind::Field, take());
        if (current().kind == Kind::Text)
            return node(Node::Kind::Text, take());
        if (current().kind == Kind::Number) {
            NodePtr made = node(Node::Kind::Number, take());
            made->value = made->text.toDouble();
            return made;
        }
        if (current().isWord("NULL"_L1))
            return node(Node::Kind::Null, take());
        if (current().isWord("TRUE"_L1) || current().isWord("FALSE"_L1)) {
            NodePtr made = node(Node::Kind::Boolean, take());
            made->value = made->text == "TRUE"_L1;
            return made;
        }
        unexpected(Texts::tr("a field or a value"));
    }

    const QString &m_expression;
    QList<FilterToken> m_tokens;
    qsizetype m_at = 0;
    int m_depth = 0;
};

} // namespace

std::unique_ptr<FilterExpression::Node> parseFilter(const QString &expression) { return Parser(expression).run(); }

} // namespace Engine
