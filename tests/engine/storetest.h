#pragma once

#include "engine/dialect.h"
#include "engine/error.h"
#include "tests/support/teststore.h"

#include <gtest/gtest.h>

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

#define ON_BOTH_STORES(suite)                                                                                      \
    INSTANTIATE_TEST_SUITE_P(, suite, testing::Values(Store::Local, Store::Remote),                                \
                             [](const auto &param) { return storeName(param.param); })

// The code of the EngineError that the call throws; General - 1 when it throws none.
template <typename Call> Engine::ErrorCode codeOf(Call call, QString *text = nullptr)
{
    try {
        call();
    } catch (const Engine::EngineError &error) {
        if (text)
            *text = error.text();
        return error.code();
    }
    return static_cast<Engine::ErrorCode>(static_cast<int>(Engine::ErrorCode::General) - 1);
}

inline void PrintTo(const QString &text, std::ostream *stream) { *stream << '"' << text.toStdString() << '"'; }
