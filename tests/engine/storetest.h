#pragma once

#include "engine/store/dialect.h"
#include "tests/support/bothstores.h"

// A table with a field of each type.
inline Engine::TableLayout everyType()
{
    using namespace Qt::StringLiterals;
    using Engine::FieldType;
    return {u"Sample"_s,
            {{u"SampleID"_s, FieldType::Integer},
             {u"Small"_s, FieldType::SmallInt},
             {u"Quantity"_s, FieldType::Float},
             {u"Cost"_s, FieldType::Money},
             {u"Posted"_s, FieldType::Boolean},
             {u"Day"_s, FieldType::Date},
             {u"Moment"_s, FieldType::DateTime},
             {u"Name"_s, FieldType::Text, 20},
             {u"User"_s, FieldType::Text, 10},
             {u"Notes"_s, FieldType::Memo}},
            {{QString(), u"SampleID"_s, Engine::IndexOption::Primary}}};
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
