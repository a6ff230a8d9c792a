#include "tests/support/teststore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Engine;

TEST(Store, Smoke)
{
    TestStore store(Store::Local);
    TableLayout layout{u"Vendor"_s,
                       {{u"VendorID"_s, FieldType::Integer}, {u"VendorName"_s, FieldType::Text, 40}, {u"Rate"_s, FieldType::Money}},
                       {{QString(), u"VendorID"_s, IndexOption::Primary}}};
    store.database().createTable(layout);
    auto s = store.database().connection().prepare(u"INSERT INTO Vendor VALUES (?, ?, ?)"_s);
    s->bind(0, Value(1)); s->bind(1, Value(u"x"_s)); s->bind(2, Value(5.0));
    EXPECT_EQ(s->execute(), 1);
    EXPECT_EQ(store.database().connection().describe(u"vendor"_s)->fields, layout.fields);
}
