#include "engine/store/namedparameters.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

bool belongsToName(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

} // namespace

qsizetype afterQuoted(const QString &sql, qsizetype at)
{
    const QChar c = sql[at];
    qsizetype end = at;
    if (c == u'\'' || c == u'"')
        end = sql.indexOf(c, at + 1);
    else if (sql.mid(at, 2) == "--"_L1)
        end = sql.indexOf(u'\n', at);
    else if (sql.mid(at, 2) == "/*"_L1)
        end = sql.indexOf("*/"_L1, at + 2) + 1;
    else
        return at;
    return end <= at ? sql.size() : end + 1;
}

PositionalSql positional(const QString &sql)
{
    PositionalSql result;
    qsizetype at = 0;
    while (at < sql.size()) {
        if (const qsizetype after = afterQuoted(sql, at); after > at) {
            result.sql += QStringView(sql).mid(at, after - at);
            at = after;
            continue;
        }
        if (sql.mid(at, 2) == "::"_L1) {
            result.sql += "::"_L1;
            at += 2;
            continue;
        }
        qsizetype end = at + 1;
        while (sql[at] == u':' && end < sql.size() && belongsToName(sql[end]))
            ++end;
        if (end == at + 1) {
            result.sql += sql[at++];
            continue;
        }
        result.names << sql.mid(at + 1, end - at - 1);
        result.sql += u'?';
        at = end;
    }
    return result;
}

} // namespace Engine
