#pragma once

#include "engine/store/dialect.h"
#include "tests/support/bothstores.h"
#include "tests/support/madelayout.h"

// A table with a field of each type.
inline Engine::TableLayout everyType(const QString &indexes = QStringLiteral("SampleID primary"))
{
    return madeLayout(
        QStringLiteral("Sample"),
        QStringLiteral("SampleID integer, Small small, Quantity float, Cost money, Posted boolean, Day date, "
                       "Moment moment, Name text 20, User text 10, Notes memo"),
        indexes);
}

// A case that runs on both stores.
struct StoreTest : testing::TestWithParam<Store>
{
    TestStore store{GetParam()};
    Engine::Database &database = store.database();
    Engine::Connection &connection = database.connection();

    // The first column of the first row as text; "-" for a null, "" for no row.
    QString one(const QString &sql)
    {
        const Engine::StatementPtr statement = connection.prepare(sql);
        if (!statement->next())
            return {};
        return statement->isNull(0) ? QStringLiteral("-") : statement->textAt(0);
    }
};
