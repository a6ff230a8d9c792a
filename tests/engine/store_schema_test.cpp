#include "engine/records/table.h"
#include "tests/engine/storetest.h"

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

using SchemaTest = StoreTest;

const TableLayout items =
    madeLayout(u"Item"_s, u"ItemID counted, Name text 10"_s, u"ItemID primary, NAME1 Name folded"_s);
const TableLayout oneRow = madeLayout(u"ItemCtl"_s, u"NextItemNo integer"_s);

} // namespace

TEST_P(SchemaTest, EveryLayoutIsReadBackAsItWasMade)
{
    const TableLayout layouts[] = {
        everyType(u"SampleID primary, NAME1 Name folded, USER User;Name folded, BYDAY Day;SampleID descending, "
                  "MIXED Small;Name folded descending, COST Cost"_s),
        madeLayout(u"VContact"_s, u"VendorID integer, ContactID counted, LastName text 30"_s,
                   u"VendorID;ContactID primary, FULLNAME VendorID;LastName folded"_s),
        madeLayout(u"Config"_s, u"Code text 5, Text memo"_s, u"Code primary"_s),
        madeLayout(u"Latest"_s, u"Day date, No integer"_s, u"Day;No primary descending"_s), oneRow};
    for (const TableLayout &layout : layouts) {
        SCOPED_TRACE(layout.name.toStdString());
        EXPECT_TRUE(database.differs(layout));
        database.createTable(layout);
        const std::optional<TableLayout> stored = connection.describe(layout.name.toUpper());
        ASSERT_TRUE(stored);
        EXPECT_EQ(stored->name, layout.name);
        EXPECT_EQ(stored->fields, layout.fields);
        EXPECT_EQ(stored->indexes, layout.indexes);
        EXPECT_FALSE(database.differs(layout));
    }
    EXPECT_EQ(store.tables().size(), std::size(layouts));
    EXPECT_GT(store.connection().size(), 0);
}

TEST_P(SchemaTest, RestructuringKeepsRowsAndConvertsWhatItCan)
{
    // The value as SQL, the size of a text, and what comes of it as text; "-" for null.
    const std::tuple<FieldType, QString, FieldType, int, QString> cases[] = {
        {FieldType::Text, u"'A long name'"_s, FieldType::Text, 6, u"A long"_s},
        {FieldType::Text, u"'Ünïcödé'"_s, FieldType::Text, 3, u"Ünï"_s},
        {FieldType::Text, u"' 42'"_s, FieldType::Integer, 0, u"42"_s},
        {FieldType::Text, u"'-1.75'"_s, FieldType::Money, 0, u"-1.75"_s},
        {FieldType::Text, u"'42 pcs'"_s, FieldType::Integer, 0, u"-"_s},
        {FieldType::Text, u"''"_s, FieldType::Float, 0, u"-"_s},
        {FieldType::Text, u"'99999999999'"_s, FieldType::Integer, 0, u"-"_s},
        {FieldType::Text, u"'2024-02-29'"_s, FieldType::Date, 0, u"2024-02-29"_s},
        {FieldType::Text, u"'2023-02-29'"_s, FieldType::Date, 0, u"-"_s},
        {FieldType::Text, u"'2024-02-29'"_s, FieldType::DateTime, 0, u"2024-02-29 00:00:00"_s},
        {FieldType::Text, u"'Yes'"_s, FieldType::Boolean, 0, u"true"_s},
        {FieldType::Text, u"'maybe'"_s, FieldType::Boolean, 0, u"-"_s},
        {FieldType::Integer, u"40000"_s, FieldType::SmallInt, 0, u"-"_s},
        {FieldType::Float, u"-2.9"_s, FieldType::Integer, 0, u"-2"_s},
        {FieldType::Float, u"1e12"_s, FieldType::Integer, 0, u"-"_s},
        {FieldType::Integer, u"2"_s, FieldType::Boolean, 0, u"true"_s},
        {FieldType::DateTime, u"'2024-02-29 10:11:12'"_s, FieldType::Date, 0, u"2024-02-29"_s},
        {FieldType::Date, u"'2024-02-29'"_s, FieldType::Integer, 0, u"-"_s},
        {FieldType::Integer, u"NULL"_s, FieldType::Text, 5, u"-"_s},
    };
    int number = 0;
    for (const auto &[from, stored, to, size, expected] : cases) {
        SCOPED_TRACE(++number);
        TableLayout layout = madeLayout(u"T"_s, u"Gone integer, ID integer"_s);
        layout.fields.append({u"F"_s, from, 20});
        database.createTable(layout);
        store.execute(u"INSERT INTO T VALUES (1, 2, %1)"_s, stored);
        layout = madeLayout(u"T"_s, u"ID integer, Added text 5"_s, u"ID primary, F F descending"_s);
        layout.fields.prepend({u"F"_s, to, size});
        database.restructureTable(layout);
        EXPECT_FALSE(database.differs(layout));
        EXPECT_EQ(connection.describe(u"T"_s)->name, u"T"_s);
        StatementPtr row = connection.prepare(u"SELECT F, ID, Added FROM T"_s);
        ASSERT_TRUE(row->next());
        const Value value = row->valueAt(0, to);
        EXPECT_EQ(value.isNull() ? u"-"_s : value.toText(), expected);
        EXPECT_EQ(row->intAt(1), 2);
        EXPECT_TRUE(row->isNull(2));
        row.reset();
        store.execute(u"DROP TABLE T"_s);
    }
}

TEST_P(SchemaTest, AutoIncrementNeverGivesANumberTwice)
{
    TableLayout layout = items;
    database.createTable(layout);
    store.execute(u"INSERT INTO Item (Name) VALUES ('a'), ('b'), ('c')"_s);
    EXPECT_EQ(connection.lastInsertId(), 3);
    store.execute(u"DELETE FROM Item WHERE Name = 'c'"_s);
    layout.fields.append({u"More"_s, FieldType::Integer});
    database.restructureTable(layout);
    store.execute(u"INSERT INTO Item (Name) VALUES ('d')"_s);
    EXPECT_EQ(connection.lastInsertId(), 4);
    EXPECT_EQ(store.found(u"SELECT ItemID FROM Item WHERE Name = 'd'"_s), u"4"_s);

    Table table(database, u"Item"_s);
    table.open();
    for (const int brought : {50, 20}) {
        table.insert();
        table.set(u"ItemID", brought);
        table.post();
    }
    table.insert();
    table.post();
    EXPECT_EQ(table.integer(u"ItemID"), 51);
}

TEST_P(SchemaTest, ARestructuringThatFailsChangesNothing)
{
    database.createTable(madeLayout(u"T"_s, u"ID integer, Name text 10"_s));
    store.execute(u"INSERT INTO T VALUES (1, 'one'), (1, 'again')"_s);
    const TableLayout before = *connection.describe(u"T"_s);
    const TableLayout keyed = madeLayout(u"T"_s, u"ID integer, Name text 3"_s, u"ID primary"_s);
    EXPECT_EQ(errorOf([&] { database.restructureTable(keyed); }), ErrorCode::KeyViolation);
    EXPECT_EQ(connection.describe(u"T"_s)->fields, before.fields);
    EXPECT_EQ(store.found(u"SELECT count(*) FROM T WHERE Name = 'again'"_s), u"1"_s);
}

TEST_P(SchemaTest, OneRowIsEnsuredOnce)
{
    for (int i = 0; i < 2; ++i)
        database.createOrUpdateTable(oneRow, Database::EnsureOneRow::Yes);
    EXPECT_EQ(store.rows(u"SELECT NextItemNo FROM ItemCtl"_s), QStringList{QString()}) << "of nothing";
}

TEST_P(SchemaTest, ATableThatOthersHaveOpenIsNotChanged)
{
    TableLayout layout = items;
    database.createTable(layout);
    auto other = store.anotherUser();
    ASSERT_TRUE(other->locks().tryOpenShared(u"Item"_s));
    layout.fields[1].size = 20;
    EXPECT_TRUE(fails([&] { database.restructureTable(layout); }, ErrorCode::TableInUse, u"Item"_s));
    EXPECT_EQ(errorOf([&] { database.repairTable(u"Item"_s); }), ErrorCode::TableInUse);
    other->locks().closeShared(u"Item"_s);
    database.restructureTable(layout);
    EXPECT_FALSE(database.differs(layout));
}

TEST_P(SchemaTest, ADatabaseIsToldFromAllOthers)
{
    const QString identity = database.identity();
    EXPECT_FALSE(identity.isEmpty());
    EXPECT_EQ(store.anotherUser()->database.identity(), identity);
    EXPECT_NE(TestStore(GetParam()).database().identity(), identity);
    database.close();
    EXPECT_EQ(database.identity(), identity);
}

ON_BOTH_STORES(SchemaTest);
