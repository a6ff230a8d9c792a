#include "engine/records/table.h"
#include "engine/store/readmoment.h"
#include "tests/support/failures.h"
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
    struct Network
    {
        Network() { qputenv("TALLYMERE_TEST_NETWORK", "1"); }
        ~Network() { qunsetenv("TALLYMERE_TEST_NETWORK"); }
    } network;
    TestStore store{Store::Local}; // a new database
    Connection &connection = store.database().connection();
    QFile file{store.directory() + u'/' + store.database().name() + ".sqlite"_L1};

    void SetUp() override
    {
        ASSERT_EQ(store.rows(u"PRAGMA journal_mode"_s), QStringList{u"delete"_s});
        connection.execute(u"PRAGMA busy_timeout = 0"_s);
        store.database().createTable({u"Note"_s,
                                      {{u"Number"_s, FieldType::AutoInc, 0}, {u"Words"_s, FieldType::Text, 20}},
                                      {{u""_s, u"Number"_s, IndexOption::Primary}}});
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
    other->database.connection();
    reader->database.connection().execute(u"BEGIN; SELECT * FROM Note"_s);
    connection.begin();
    connection.execute(u"INSERT INTO Note (Words) VALUES ('taken back')"_s);
    ASSERT_EQ(errorOf([&] { connection.commit(); }), ErrorCode::Busy);
    const QByteArray header = contentOfFile();
    QByteArray raised = header;
    qToBigEndian(store.rows(u"PRAGMA user_version"_s).first().toInt(), raised.data() + stampPlace);
    putContent(raised); // as in the middle of the commit
    other->database.connection().execute(u"SELECT 1"_s); // looks at the file
    putContent(header);
    connection.rollback();
    reader->database.connection().execute(u"COMMIT"_s);
    other->database.connection().execute(u"INSERT INTO Note (Words) VALUES ('two')"_s);
    EXPECT_EQ(store.found(u"SELECT Words FROM Note"_s), u"one two");
}

// The earlier content put back over the file, with everything in it committed since by one of two users.
TEST_F(NetworkFolder, AnEarlierContentIsNoticedByBothUsers)
{
    const auto anna = store.anotherUser();
    anna->database.connection();
    const QByteArray earlier = contentOfFile();
    write(u"one"_s);
    putContent(earlier);
    for (Connection *user : {&connection, &anna->database.connection()})
        EXPECT_EQ(errorOf([&] { user->execute(u"SELECT 1"_s); }), ErrorCode::FileReplaced);
}

TEST_F(NetworkFolder, ANumberThatSomebodyElseTookMeanwhileIsCountedAnew)
{
    Table notes(store.database(), u"Note"_s);
    notes.open();
    notes.insert();
    notes.set(u"Words"_s, u"mine"_s);
    const auto anna = store.anotherUser();
    anna->database.connection().execute(u"BEGIN; SELECT * FROM Note"_s); // a reader keeps the commit waiting
    EXPECT_EQ(errorOf([&] { notes.post(); }), ErrorCode::Busy);
    anna->database.connection().execute(u"INSERT INTO Note (Words) VALUES ('theirs'); COMMIT"_s);
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
