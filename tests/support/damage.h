#pragma once

#include "engine/values/error.h"
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

// Changes one byte of the first page of a table or an index of a local store; a negative place counts from the page's end.
inline void flipByte(TestStore &store, const QString &tree, int place)
{
    const QStringList page =
        store
            .rows(QStringLiteral("SELECT (pageno - 1) * pgsize, pgsize FROM dbstat WHERE name = '%1' "
                                 "AND pagetype = 'leaf' ORDER BY path LIMIT 1")
                      .arg(tree))
            .value(0)
            .split(QLatin1Char('|'));
    store.execute(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    store.database().close();
    QFile file(store.directory() + QStringLiteral("/Corvane.sqlite"));
    const qint64 at = page[0].toLongLong() + (place < 0 ? page.last().toLongLong() : 0) + place;
    char byte = 0;
    EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at) && file.getChar(&byte) && file.seek(at)
                && file.putChar(static_cast<char>(byte ^ 0x55)));
}

inline bool isSound(TestStore &store)
{
    try {
        return store.rows(QStringLiteral("SELECT integrity_check FROM pragma_integrity_check"))
            == QStringList(QStringLiteral("ok"));
    } catch (const Engine::EngineError &) {
        return false;
    }
}
