#pragma once

#include <QString>
#include <QStringList>

namespace Engine {

// A statement whose named parameters (":ReceiptID") have become "?".
struct PositionalSql
{
    QString sql;
    QStringList names; // one for each "?", in order; a name may come several times
};

// Where the text, quoted name or comment ends that begins at this place, in which no parameter counts; the same place
// when none does.
qsizetype afterQuoted(const QString &sql, qsizetype at);

// Leaves texts and names in quotes, comments and casts ("::") as they are.
PositionalSql positional(const QString &sql);

} // namespace Engine
