#include "engine/records/table.h"
#include "tests/engine/storetest.h"

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

using SchemaTest = StoreTest;

const IndexDef primaryOver(const QString &fields, IndexOptions more = IndexOption::None)
{
    return {QString(), fields, IndexOption::Primary | more};
}

QList<TableLayout> layouts()
{
    TableLayout sample = everyType();
    sample.indexes += {{u"NAME1"_s, u"Name"_s, IndexOption::CaseInsensitive},
                       {u"USER"_s, u"User;Name"_s, IndexOption::CaseInsensitive},
                       {u"BYDAY"_s, u"Day;SampleID"_s, IndexOption::Descending},
                       {u"MIXED"_s, u"Small;Name"_s, IndexOption::CaseInsensitive | IndexOption::Descending},
                       {u"COST"_s, u"Cost"_s, IndexOption::None}};
    return {
        sample,
        {u"VContact"_s,
         {{u"VendorID"_s, FieldType::Integer},
          {u"ContactID"_s, FieldType::AutoInc},
          {u"LastName"_s, FieldType::Text, 30}},
         {primaryOver(u"VendorID;ContactID"_s),
          {u"FULLNAME"_s, u"VendorID;LastName"_s, IndexOption::CaseInsensitive}}},
        {u"Config"_s, {{u"Code"_s, FieldType::Text, 5}, {u"Text"_s, FieldType::Memo}}, {primaryOver(u"Code"_s)}},
        {u"Latest"_s,
         {{u"Day"_s, FieldType::Date}, {u"No"_s, FieldType::Integer}},
         {primaryOver(u"Day;No"_s, IndexOption::Descending)}},
        {u"ItemCtl"_s, {{u"NextItemNo"_s, FieldType::Integer}}, {}},
    };
}

TableLayout items()
{
    return {u"Item"_s,
            {{u"ItemID"_s, FieldType::AutoInc}, {u"Name"_s, FieldType::Text, 10}},
            {primaryOver(u"ItemID"_s), {u"NAME1"_s, u"Name"_s, IndexOption::CaseInsensitive}}};
}

} // namespace

TEST_P(SchemaTest, EveryLayoutIsReadBackAsItWasMade)
{
    for (const TableLayout &layout : layouts()) {
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
    EXPECT_EQ(store.tables().size(), layouts().size());
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
        TableLayout layout{
            u"T"_s, {{u"Gone"_s, FieldType::Integer}, {u"ID"_s, FieldType::Integer}, {u"F"_s, from, 20}}, {}};
        database.createTable(layout);
        store.execute(u"INSERT INTO T VALUES (1, 2, %1)"_s, stored);
        layout.fields = {{u"F"_s, to, size}, {u"ID"_s, FieldType::Integer}, {u"Added"_s, FieldType::Text, 5}};
        layout.indexes = {primaryOver(u"ID"_s), {u"F"_s, u"F"_s, IndexOption::Descending}};
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
    TableLayout layout = items();
    database.createTable(layout);
    store.execute(u"INSERT INTO Item (Name) VALUES ('a'), ('b'), ('c')"_s);
    EXPECT_EQ(connection.lastInsertId(), 3);
    store.execute(u"DELETE FROM Item WHERE Name = 'c'"_s);
    layout.fields.append({u"More"_s, FieldType::Integer});
    database.restructureTable(layout);
    const StatementPtr insert = connection.prepare(u"INSERT INTO Item (Name) VALUES (?)"_s);
    insert->bindText(0, u"d"_s);
    insert->execute();
    EXPECT_EQ(connection.lastInsertId(), 4);
    EXPECT_EQ(one(u"SELECT ItemID FROM Item WHERE Name = 'd'"_s), u"4"_s);

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
    TableLayout layout{u"T"_s, {{u"ID"_s, FieldType::Integer}, {u"Name"_s, FieldType::Text, 10}}, {}};
    database.createTable(layout);
    store.execute(u"INSERT INTO T VALUES (1, 'one'), (1, 'again')"_s);
    const TableLayout before = *connection.describe(u"T"_s);
    layout.fields[1].size = 3;
    layout.indexes = {primaryOver(u"ID"_s)};
    EXPECT_EQ(errorOf([&] { database.restructureTable(layout); }), ErrorCode::KeyViolation);
    EXPECT_EQ(connection.describe(u"T"_s)->fields, before.fields);
    EXPECT_EQ(one(u"SELECT count(*) FROM T WHERE Name = 'again'"_s), u"1"_s);
}

TEST_P(SchemaTest, OneRowIsEnsuredOnce)
{
    const TableLayout layout = layouts().last();
    for (int i = 0; i < 2; ++i) {
        database.createOrUpdateTable(layout, Database::EnsureOneRow::Yes);
        EXPECT_EQ(one(u"SELECT count(*) FROM ItemCtl"_s), u"1"_s);
    }
    EXPECT_EQ(one(u"SELECT NextItemNo FROM ItemCtl"_s), u"-"_s);
}

TEST_P(SchemaTest, ATableThatOthersHaveOpenIsNotChanged)
{
    TableLayout layout = items();
    database.createTable(layout);
    auto other = store.anotherUser();
    ASSERT_TRUE(other->database.connection().locks().tryOpenShared(u"Item"_s));
    layout.fields[1].size = 20;
    EXPECT_TRUE(fails([&] { database.restructureTable(layout); }, ErrorCode::TableInUse, u"Item"_s));
    EXPECT_EQ(errorOf([&] { database.repairTable(u"Item"_s); }), ErrorCode::TableInUse);
    other->database.connection().locks().closeShared(u"Item"_s);
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
