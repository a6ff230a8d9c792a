#include "transactions/documents/documentsearch.h"

#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/sqlcondition.h"
#include "transactions/documents/documentkind.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QList<FoundDocument> read(Engine::Database &database, const DocumentKind &kind,
                          const Engine::SqlCondition &condition, int most)
{
    const Engine::Dialect &dialect = database.connection().dialect();
    const auto column = [&dialect](const QString &field) { return "t."_L1 + dialect.name(field); };
    const QString description = kind.entry.descriptionField.value_or(QString());
    const Engine::StatementPtr rows =
        database.connection().prepare(u"SELECT %1, %2, %3, %4, %5 FROM %6 t WHERE %7 ORDER BY %8 LIMIT %9"_s.arg(
            column(kind.keyField), column(kind.shownField()), column(kind.dateField), column(Fields::Posted),
            description.isEmpty() ? u"NULL"_s : column(description), dialect.name(kind.headerTable), condition.text,
            dialect.orderTerm(column(kind.shownField()), false, false), QString::number(most)));
    Engine::bindAll(*rows, condition.parameters);
    QList<FoundDocument> found;
    while (rows->next()) {
        found.append({.key = static_cast<int>(rows->intAt(0)),
                      .number = rows->textAt(1),
                      .description = rows->textAt(4),
                      .date = rows->valueAt(2, Engine::FieldType::Date).toDate(),
                      .posted = rows->valueAt(3, Engine::FieldType::Boolean).toBool()});
    }
    return found;
}

Engine::SqlCondition keyIs(Engine::Database &database, const DocumentKind &kind, qint64 key)
{
    return {"t."_L1 + database.connection().dialect().name(kind.keyField) + " = ?"_L1, {key}};
}

// Only what is a number as it is written, and can be a key.
std::optional<qint64> keyOf(const QString &number)
{
    bool isNumber = false;
    const qint64 key = number.toLongLong(&isNumber);
    if (!isNumber || key < 0 || key > std::numeric_limits<qint32>::max() || QString::number(key) != number)
        return std::nullopt;
    return key;
}

// The keys that are written with these figures at their beginning: 12, 120 to 129, 1200 to 1299 and so on.
Engine::SqlCondition keyBegins(Engine::Database &database, const DocumentKind &kind, qint64 key)
{
    const QString column = "t."_L1 + database.connection().dialect().name(kind.keyField);
    QStringList ranges;
    QList<Engine::Value> bounds;
    constexpr qint64 largest = std::numeric_limits<qint32>::max();
    for (qint64 lowest = key, highest = key; lowest <= largest; lowest *= 10, highest = highest * 10 + 9) {
        ranges << u"%1 BETWEEN ? AND ?"_s.arg(column);
        bounds << Engine::Value(lowest) << Engine::Value(std::min(highest, largest));
        if (key == 0) // no number begins with it but itself
            break;
    }
    return {u'(' + ranges.join(" OR "_L1) + u')', bounds};
}

} // namespace

QList<FoundDocument> documentsByNumber(Engine::Database &database, const DocumentKind &kind, const QString &number,
                                       int most)
{
    Engine::SqlCondition condition = Engine::never();
    if (kind.numberField) {
        const Engine::Dialect &dialect = database.connection().dialect();
        condition = Engine::beginsWith(dialect, {"t."_L1 + dialect.name(*kind.numberField), false}, number);
    } else if (const std::optional<qint64> key = keyOf(number)) {
        condition = keyBegins(database, kind, *key);
    }
    QList<FoundDocument> found = read(database, kind, condition, most);
    for (FoundDocument &one : found)
        one.rank = one.number == number ? TextMatch::Rank::Number : TextMatch::Rank::NumberBegins;
    return found;
}

std::optional<FoundDocument> documentOfKey(Engine::Database &database, const DocumentKind &kind, qint64 key)
{
    const QList<FoundDocument> found = read(database, kind, keyIs(database, kind, key), 1);
    return found.isEmpty() ? std::nullopt : std::optional(found.constFirst());
}

std::optional<NameSource> descriptionsOf(const DocumentKind &kind)
{
    if (!kind.entry.descriptionField)
        return std::nullopt;
    return NameSource{kind.headerTable, kind.keyField, {}, *kind.entry.descriptionField};
}

} // namespace Tallymere
