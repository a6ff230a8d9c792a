#include "engine/store/batchedrun.h"
#include "tests/engine/storetest.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

struct StatementTest : StoreTest
{
    void SetUp() override { database.createTable(everyType()); }

    StatementPtr insertion(qint64 key, const QString &name)
    {
        StatementPtr statement = connection.prepare(u"INSERT INTO Sample (SampleID, Name) VALUES (?, ?)"_s);
        statement->bindInt(0, key);
        statement->bindText(1, name);
        return statement;
    }
    void insert(qint64 key, const QString &name) { insertion(key, name)->execute(); }
    void send(qint64 key) { insertion(key, u"sent"_s)->send(); }
};

} // namespace

// Read once, whatever others write; but not what the run itself may write to.
TEST_P(StatementTest, ARunKeepsWhatItHasRead)
{
    database.createTable(madeLayout(u"Other"_s, u"OtherID integer, Name text 9"_s));
    insert(1, u"one"_s);
    connection.execute(u"INSERT INTO Other (OtherID, Name) VALUES (1, 'one')"_s);
    const auto anna = store.anotherUser();
    const auto read = [&](const QString &sql, qint64 key) {
        const StatementPtr statement = connection.prepare(sql);
        statement->bindInt(0, 1);
        statement->next();
        statement->bindInt(0, key); // and it is asked anew
        QStringList row;
        while (statement->next())
            row << statement->textAt(0) << QString::number(statement->intAt(1));
        return row.join(u' ');
    };
    const QString sample = u"SELECT Name, SampleID FROM Sample WHERE SampleID = ?"_s;
    const QString both = u"SELECT S.Name, O.OtherID FROM Sample S JOIN Other O ON O.OtherID = S.SampleID WHERE "
                         "S.SampleID = ?"_s;
    const QString list =
        u"SELECT S.Name, O.OtherID FROM Sample S, Other O WHERE S.SampleID = ? AND O.Name = S.Name"_s;
    {
        const BatchedRun run(database, {u"Sample"_s});
        EXPECT_EQ(read(sample, 1), u"one 1"_s);
        EXPECT_EQ(read(both, 1), u"one 1"_s);
        EXPECT_EQ(read(list, 1), u"one 1"_s);
        EXPECT_EQ(read(sample, 2), QString());
        anna->execute(u"UPDATE Sample SET Name = 'uno'; UPDATE Other SET OtherID = 7 WHERE OtherID = 1"_s);
        EXPECT_EQ(read(sample, 1), u"one 1"_s);
        EXPECT_EQ(read(both, 1), QString());
        EXPECT_EQ(read(list, 1), QString());
    }
    EXPECT_EQ(read(sample, 1), u"uno 1"_s);
}

TEST_P(StatementTest, ValuesComeBackAsTheyWere)
{
    const QList<QList<Value>> rows{
        {1, -32768, 0.1, Money::fromTenThousandths(12345678), true, QDate(2024, 2, 29),
         QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58)), u"Grüße 'quoted' 😀"_s, u"maria"_s,
         u"two\r\nlines\n\ta \\ and \\N"_s},
        {2, 32767, -1e300, 5.0, false, QDate(1, 1, 1), QDateTime(QDate(1999, 12, 31), QTime(0, 0)), u""_s, u"\\N"_s,
         u""_s},
        {3, 0, std::numeric_limits<double>::denorm_min(), 1e15, Value(), Value(), Value(), Value(), Value(),
         Value()},
        {std::numeric_limits<qint32>::min(), Value(), 0.30000000000000004, Value(), Value(), Value(), Value(),
         Value(), Value(), Value()},
    };
    const StatementPtr insert = connection.prepare(u"INSERT INTO Sample VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
    const StatementPtr read = connection.prepare(u"SELECT * FROM Sample WHERE SampleID = ?"_s);
    const QList<FieldDef> fields = everyType().fields;
    for (const bool atOnce : {false, true}) {
        SCOPED_TRACE(atOnce);
        Transaction transaction(connection);
        store.execute(u"DELETE FROM Sample"_s);
        const auto bulk = atOnce ? connection.bulkInsert(everyType()) : nullptr;
        for (const QList<Value> &row : rows) {
            for (int i = 0; i < row.size(); ++i)
                insert->bind(i, row[i]);
            bulk ? bulk->add(row) : void(insert->execute());
        }
        if (bulk)
            bulk->finish();
        transaction.commit();
        for (const QList<Value> &row : rows) {
            read->bind(0, row[0]);
            ASSERT_TRUE(read->next());
            for (int i = 0; i < row.size(); ++i)
                EXPECT_EQ(read->valueAt(i, fields[i].type), row[i]) << fields[i].name.toStdString();
            EXPECT_FALSE(read->next());
        }
    }
    if (GetParam() == Store::Remote) {
        const auto bulk = connection.bulkInsert(everyType());
        bulk->add({4, 99'999, 0.0, 1.0, true, Value(), Value(), Value(), Value(), Value()});
        EXPECT_TRUE(fails([&] { bulk->finish(); }, ErrorCode::BadValue, u"line 1, column"_s));
    }
    if (GetParam() == Store::Local) {
        // What the sqlite3 shell shows.
        EXPECT_EQ(
            store.found(
                u"SELECT typeof(Cost) || ' ' || Cost || ' ' || typeof(Posted) || ' ' || typeof(Day) || ' ' || "
                "Moment FROM Sample WHERE SampleID = 2"_s),
            u"real 5.0 integer text 1999-12-31 00:00:00"_s);
    }
}

TEST_P(StatementTest, QuestionMarksInTextsAndCommentsAreNoParameters)
{
    const StatementPtr plain =
        connection.prepare("SELECT '?' || Name FROM Sample -- it's ?\n WHERE /* ? */ SampleID = ? AND "_L1
                           + connection.dialect().name(u"User"_s) + " IS NULL"_L1);
    insert(7, u"x"_s);
    plain->bindInt(0, 7);
    ASSERT_TRUE(plain->next());
    EXPECT_EQ(plain->textAt(0), u"?x"_s);
}

TEST_P(StatementTest, AStatementInUseIsNotHandedOutTwice)
{
    for (int key = 1; key <= 3; ++key)
        insert(key, QString::number(key));
    const QString sql = u"SELECT SampleID FROM Sample ORDER BY SampleID"_s;
    QStringList seen;
    const StatementPtr outer = connection.prepare(sql);
    while (outer->next()) {
        // Others read and write between the rows, with the same text and with another.
        const StatementPtr inner = connection.prepare(sql);
        ASSERT_TRUE(inner->next());
        seen << outer->textAt(0) + inner->textAt(0);
        insert(100 + outer->intAt(0), u"later"_s);
        if (seen.size() == 3)
            break;
    }
    EXPECT_EQ(seen, (QStringList{u"11"_s, u"21"_s, u"31"_s}));
    const Statement *address = connection.prepare(sql).get();
    EXPECT_EQ(connection.prepare(sql).get(), address) << "a free statement is used again";
}

TEST_P(StatementTest, AStatementMayOutliveItsConnection)
{
    auto other = store.anotherUser();
    StatementPtr statement = other->connection().prepare(u"SELECT count(*) FROM Sample"_s);
    ASSERT_TRUE(statement->next());
    other.reset();
    statement.reset();
    EXPECT_EQ(store.found(u"SELECT count(*) FROM Sample"_s), u"0"_s);
}

TEST_P(StatementTest, FailuresHaveTheEnginesCodes)
{
    const std::pair<QString, ErrorCode> cases[] = {
        {u"SELECT * FROM Missing"_s, ErrorCode::NoSuchTable},
        {u"SELECT Missing FROM Sample"_s, ErrorCode::NoSuchField},
        {u"SELEC"_s, ErrorCode::General},
    };
    for (const auto &[sql, code] : cases)
        EXPECT_EQ(errorOf([&, &sql = sql] { connection.prepare(sql)->execute(); }), code) << sql.toStdString();
}

TEST_P(StatementTest, SentStatementsKeepTheirOrderAndAreSeenByTheNextQuestion)
{
    Transaction transaction(connection);
    for (int key = 1; key <= 2000; ++key)
        send(key);
    EXPECT_EQ(store.found(u"SELECT count(*) FROM Sample"_s), u"2000"_s);
    connection.prepare(u"UPDATE Sample SET Name = 'changed' WHERE SampleID = 2000"_s)->send();
    EXPECT_EQ(connection.prepare(u"DELETE FROM Sample WHERE Name = 'changed'"_s)->execute(), 1);
    send(2000);
    transaction.commit();
    EXPECT_EQ(store.found(u"SELECT max(SampleID) FROM Sample WHERE Name = 'sent'"_s), u"2000"_s);
}

TEST_P(StatementTest, AFailureAmongSentStatementsIsReportedAndUndoesTheTransaction)
{
    insert(50, u"in the way"_s);
    for (const bool byQuestion : {false, true}) {
        Transaction transaction(connection);
        const auto code = errorOf([&] {
            for (int key = 1; key <= 500; ++key)
                send(key);
            if (byQuestion)
                store.found(u"SELECT count(*) FROM Sample"_s);
            else
                connection.drain();
        });
        EXPECT_EQ(code, ErrorCode::KeyViolation);
    }
    EXPECT_EQ(store.found(u"SELECT count(*) FROM Sample"_s), u"1"_s);
    insert(1, u"works again"_s);
    EXPECT_EQ(store.found(u"SELECT count(*) FROM Sample"_s), u"2"_s);
}

ON_BOTH_STORES(StatementTest);
