#pragma once

#include "engine/dialect.h"
#include "tests/support/bothstores.h"
#include "tests/support/failures.h"

// A case that runs on both stores.
class StoreTest : public testing::TestWithParam<Store>
{
protected:
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
