#pragma once

#include "tests/support/teststore.h"

#include <gtest/gtest.h>
#include <QFile>

// Overwrites a page in the middle of a table of a local store, with the file closed. How many rows that has cost.
inline int damage(TestStore &store, const QString &table)
{
    const QString place =
        QStringLiteral("SELECT (pageno - 1) * pgsize, ncell, pgsize FROM dbstat WHERE name = '%1' "
                       "AND pagetype = 'leaf' ORDER BY path LIMIT 1 OFFSET 3");
    const QStringList page = store.rows(place.arg(table)).value(0).split(QLatin1Char('|'));
    store.execute(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    store.database().close();
    QFile file(store.directory() + QStringLiteral("/Corvane.sqlite"));
    EXPECT_TRUE(page.size() == 3 && file.open(QIODevice::ReadWrite) && file.seek(page[0].toLongLong()));
    file.write(QByteArray(page.last().toInt(), '\xEE'));
    return page.value(1).toInt();
}

inline bool isSound(TestStore &store)
{
    return store.rows(QStringLiteral("SELECT integrity_check FROM pragma_integrity_check"))
        == QStringList(QStringLiteral("ok"));
}
