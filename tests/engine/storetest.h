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
    Engine::Connection &connection = store.connection();
};
