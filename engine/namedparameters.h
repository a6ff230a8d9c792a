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

// Leaves texts and names in quotes, comments and casts ("::") as they are.
PositionalSql positional(const QString &sql);

} // namespace Engine
