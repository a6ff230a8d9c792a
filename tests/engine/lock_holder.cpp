#include "engine/error.h"
#include "engine/lockmanager.h"
#include "tests/support/teststore.h"

#include <iostream>
#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace Engine;

// Another user of a test's database: lock_holder local FOLDER | remote NAME. Obeys the lines of standard input
// ("record Item 5", "table Item", "open Item", "alone Item", "sql TEXT") with "yes" or "no" each, and "rows SELECT ..." with
// the first column.

namespace {

bool obey(Connection &connection, const QStringList &words)
{
    LockManager &locks = connection.locks();
    const QString &order = words.first();
    if (order == "record"_L1)
        return locks.tryLockRecord(words[1], {words[2].toLongLong()});
    if (order == "table"_L1)
        return locks.tryLockTable(words[1]);
    if (order == "open"_L1)
        return locks.tryOpenShared(words[1]);
    if (order == "alone"_L1)
        return locks.tryOpenExclusive(words[1]);
    connection.execute(words.mid(1).join(u' '));
    return true;
}

std::string firstColumn(Connection &connection, const QString &sql)
{
    QStringList values;
    const StatementPtr row = connection.prepare(sql);
    while (row->next())
        values << row->textAt(0);
    return values.join(u' ').toStdString();
}

std::string answer(Connection &connection, const QStringList &words)
{
    if (words.first() == "rows"_L1)
        return firstColumn(connection, words.mid(1).join(u' '));
    return obey(connection, words) ? "yes" : "no";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    TestUser user(QCoreApplication::arguments().mid(1));
    try {
        for (std::string line; std::getline(std::cin, line);) {
            const QStringList words = QString::fromStdString(line).split(u' ');
            std::cout << answer(user.database.connection(), words) << std::endl;
        }
    } catch (const EngineError &error) {
        std::cout << error.what() << std::endl;
        return 1;
    }
    return 0;
}
