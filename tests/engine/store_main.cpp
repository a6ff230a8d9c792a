#include "engine/values/error.h"
#include "tests/support/otheruser.h"

#include <iostream>

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

std::string answer(Database &database, const QStringList &words)
{
    const QString &order = words.first();
    const QString rest = words.mid(1).join(u' ');
    if (order == "rows"_L1)
        return rowsOf(database, rest).join(u' ').toStdString();
    LockManager &locks = database.connection().locks();
    bool done = true;
    if (order == "record"_L1)
        done = locks.tryLockRecord(words[1], {words[2].toLongLong()});
    else if (order == "table"_L1)
        done = locks.tryLockTable(words[1]);
    else if (order == "open"_L1)
        done = locks.tryOpenShared(words[1]);
    else
        database.connection().execute(rest);
    return done ? "yes" : "no";
}

// Answers each line of standard input ("record Item 5", "table Item", "open Item", "sql TEXT") with "yes" or
// "no", and "rows SELECT ..." with all rows; the first failure is the last answer.
void obey(Database &database, const QStringList &)
{
    try {
        for (std::string line; std::getline(std::cin, line);)
            std::cout << answer(database, QString::fromStdString(line).split(u' ')) << std::endl;
    } catch (const EngineError &error) {
        std::cout << error.what() << std::endl;
    }
}

void writeOnce(Database &database)
{
    Transaction transaction(database.connection());
    database.connection().execute(u"CREATE TABLE IF NOT EXISTS T (a integer)"_s);
    database.connection().execute(u"INSERT INTO T VALUES (1)"_s);
    transaction.commit();
}

// Comes to the database, makes it if need be, and goes, twice; gives its identity or the first failure.
QString visitTwice(Database &database)
{
    QString identity;
    try {
        for (int visit = 0; visit < 2; ++visit) {
            identity = database.identity();
            if (database.session().type == SessionType::Local)
                writeOnce(database);
            database.close();
        }
    } catch (const EngineError &error) {
        identity = error.text();
    }
    database.close();
    return identity;
}

// Goes to the place that a line of standard input names, a folder or a database of the server; an empty line asks how it
// went.
void visit(Database &database, const QStringList &)
{
    database.createIfMissing = true;
    QString answer;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.empty()) {
            std::cout << answer.toStdString() << std::endl;
            continue;
        }
        database.directory = database.remoteName = QString::fromStdString(line);
        answer = visitTwice(database);
    }
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"obey"_s, obey}, {u"visit"_s, visit}}); }
