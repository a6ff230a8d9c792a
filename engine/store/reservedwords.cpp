#include "engine/store/reservedwords.h"

#include <QSet>

namespace Engine {

namespace {

// Words that at least one of the two stores does not take as a name of a table or column.
const char words[] =
    "abort add all alter always analyse analyze and any array as asc asymmetric attach authorization autoincrement "
    "begin between both by case cast check collate collation column commit concurrently conflict constraint create "
    "cross current current_catalog current_date current_role current_schema current_time current_timestamp "
    "current_user default deferrable deferred delete desc detach distinct do drop each else end escape except "
    "exclude exclusive exists explain fail false fetch filter following for foreign freeze from full generated "
    "glob "
    "grant group groups having if ignore ilike immediate in index indexed initially inner insert instead intersect "
    "into is isnull join key lateral leading left like limit localtime localtimestamp materialized match natural "
    "no "
    "not nothing notnull null nulls of offset on only or order others outer over overlaps partition placing plan "
    "pragma preceding primary query raise range recursive references regexp reindex release rename replace "
    "restrict "
    "returning right rollback row rows savepoint select session_user set similar some symmetric table tablesample "
    "temp temporary then ties to trailing transaction trigger true unbounded union unique update user using vacuum "
    "values variadic verbose view virtual when where window with within without";

const QSet<QString> &reserved()
{
    static const QSet<QString> set = [] {
        const QStringList list = QString::fromLatin1(words).split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return set;
}

bool isPlainWord(const QString &identifier)
{
    for (qsizetype i = 0; i < identifier.size(); ++i) {
        const char16_t c = identifier[i].unicode();
        const bool letter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
        if (!letter && (i == 0 || c < u'0' || c > u'9'))
            return false;
    }
    return !identifier.isEmpty();
}

} // namespace

QString quoted(const QString &identifier)
{
    QString inner = identifier;
    return u'"' + inner.replace(u'"', QLatin1StringView("\"\"")) + u'"';
}

QString textLiteral(const QString &text)
{
    QString inner = text;
    return u'\'' + inner.replace(u'\'', QLatin1StringView("''")) + u'\'';
}

QString quotedIfReserved(const QString &identifier)
{
    return isPlainWord(identifier) && !reserved().contains(identifier.toLower()) ? identifier : quoted(identifier);
}

} // namespace Engine
