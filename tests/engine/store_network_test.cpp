#include "engine/records/table.h"
#include "engine/store/readmoment.h"
#include "tests/support/failures.h"
#include "tests/support/madelayout.h"
#include "tests/support/teststore.h"

#include <QFile>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace Engine;

// A local store in a folder that other machines write to, where SQLite keeps its rollback journal.

constexpr int stampPlace = 60; // in the file's header

namespace {

struct NetworkFolder : testing::Test
{
    const bool isFar = qputenv("TALLYMERE_TEST_NETWORK", "1"); // until it has been taken down
    TestStore store{Store::Local}; // a new database
    Connection &connection = store.connection();
    QFile file{store.directory() + u'/' + store.database().name() + ".sqlite"_L1};

    ~NetworkFolder() override { qunsetenv("TALLYMERE_TEST_NETWORK"); }
    void SetUp() override
    {
        ASSERT_EQ(store.rows(u"PRAGMA journal_mode"_s), QStringList{u"delete"_s});
        connection.execute(u"PRAGMA busy_timeout = 0"_s);
        store.database().createTable(
            madeLayout(u"Note"_s, u"Number counted, Words text 20"_s, u"Number primary"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    }
    QByteArray contentOfFile() { return file.seek(0) ? file.readAll() : QByteArray(); }
    void putContent(const QByteArray &content)
    {
        EXPECT_TRUE(file.seek(0) && file.write(content) == content.size());
    }
    void write(const QString &words)
    {
        Transaction transaction(connection);
        connection.execute(u"INSERT INTO Note (Words) VALUES ('%1')"_s.arg(words));
        transaction.commit();
    }
};

TEST_F(NetworkFolder, WhatAnotherUserTakesBackIsNoReplacement)
{
    write(u"one"_s);
    const auto reader = store.anotherUser();
    const auto other = store.anotherUser();
    other->connection();
    reader->execute(u"BEGIN; SELECT * FROM Note"_s);
    connection.begin();
    connection.execute(u"INSERT INTO Note (Words) VALUES ('taken back')"_s);
    ASSERT_EQ(errorOf([&] { connection.commit(); }), ErrorCode::Busy);
    const QByteArray header = contentOfFile();
    QByteArray raised = header;
    qToBigEndian(store.rows(u"PRAGMA user_version"_s).first().toInt(), raised.data() + stampPlace);
    putContent(raised); // as in the middle of the commit
    other->execute(u"SELECT 1"_s); // looks at the file
    putContent(header);
    connection.rollback();
    reader->execute(u"COMMIT"_s);
    other->execute(u"INSERT INTO Note (Words) VALUES ('two')"_s);
    EXPECT_EQ(store.found(u"SELECT Words FROM Note"_s), u"one two");
}

// The earlier content put back over the file, with everything in it committed since by one of two users.
TEST_F(NetworkFolder, AnEarlierContentIsNoticedByBothUsers)
{
    const auto anna = store.anotherUser();
    anna->connection();
    const QByteArray earlier = contentOfFile();
    write(u"one"_s);
    putContent(earlier);
    for (Connection *user : {&connection, &anna->connection()})
        EXPECT_EQ(errorOf([&] { user->execute(u"SELECT 1"_s); }), ErrorCode::FileReplaced);
}

TEST_F(NetworkFolder, ANumberThatSomebodyElseTookMeanwhileIsCountedAnew)
{
    Table notes(store.database(), u"Note"_s);
    notes.open();
    notes.insert();
    notes.set(u"Words"_s, u"mine"_s);
    const auto anna = store.anotherUser();
    anna->execute(u"BEGIN; SELECT * FROM Note"_s); // a reader keeps the commit waiting
    EXPECT_EQ(errorOf([&] { notes.post(); }), ErrorCode::Busy);
    anna->execute(u"INSERT INTO Note (Words) VALUES ('theirs'); COMMIT"_s);
    notes.post();
    EXPECT_EQ(notes.integer(u"Number"_s), 2);
    EXPECT_EQ(store.found(u"SELECT Number, Words FROM Note"_s), u"1|theirs 2|mine");
}

TEST_F(NetworkFolder, AMomentKeepsWritersOutUntilItsEnd)
{
    const auto anna = store.anotherUser();
    ReadMoment moment(anna->database);
    EXPECT_TRUE(moment.keepsWritersOut());
    EXPECT_EQ(errorOf([&] { write(u"one"_s); }), ErrorCode::Busy);
    moment.end();
    write(u"two"_s);
    EXPECT_EQ(store.found(u"SELECT Words FROM Note"_s), u"two");
}

} // namespace
