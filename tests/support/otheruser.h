#pragma once

#include "tests/support/teststore.h"

#include <QHash>
#include <QProcess>

// How often the users of a race do something: so often in a run of all tests, and as TALLYMERE_TEST_TIMES says in a long
// race (scripts/races).
inline int timesByHand(int otherwise)
{
    const int times = qEnvironmentVariableIntValue("TALLYMERE_TEST_TIMES");
    return times > 0 ? times : otherwise;
}

// The test program itself in the part of another user: a process of its own on the test's database. The task is the
// name of one of the program's tasks and its arguments.
class OtherUser
{
public:
    OtherUser(const TestStore &store, const QStringList &task)
        : OtherUser(store.place(), task)
    {
    }
    OtherUser(const QStringList &place, const QStringList &task); // place() of a store
    ~OtherUser();

    void tell(const QString &order); // a line of its standard input
    QString ask(const QString &order); // and the line that it says then

    void kill(); // at once, as kill -9 does
    QString line(); // the next one that it says; empty when it has ended without
    bool saysLine() { return !line().isEmpty(); }
    bool finish(); // waits for a good end
    QByteArray rest() { return m_process.readAllStandardOutput(); } // that it has said
    QStringList output(); // in lines, after finish()

private:
    QProcess m_process;
};

using OtherUserTasks = QHash<QString, std::function<void(Engine::Database &, const QStringList &arguments)>>;

// The main() of a program of tests that plays the part when it was started by OtherUser.
int runTests(int argc, char **argv, const OtherUserTasks &tasks);
