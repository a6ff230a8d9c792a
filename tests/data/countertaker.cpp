// counter_taker FOLDER|SERVER DATABASE COUNT: takes receipt numbers one by one and prints them, one a line.

#include "data/numbercounter.h"
#include "engine/session.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Engine::Session session(u"Taker"_s);
    Engine::Database database(session, u"Corvane"_s);
    const QString remoteName = arguments.value(2);
    if (remoteName.isEmpty()) {
        database.directory = arguments.value(1);
    } else {
        session.type = Engine::SessionType::Remote;
        session.remoteAddress = arguments.value(1);
        session.remoteUser = session.remotePassword = u"zorvadin"_s;
        database.remoteName = remoteName;
    }

    QTextStream out(stdout);
    try {
        for (int i = arguments.value(3).toInt(); i > 0; --i) {
            Tallymere::takeNumbers(database, u"ItemCtl"_s, [&](Tallymere::CounterRow &counters) {
                counters.restartOutside(u"NextInvReceiptNo", 1001, 10'000'000, 1001);
                out << counters.take(u"NextInvReceiptNo") << '\n';
            });
        }
    } catch (const std::exception &error) {
        out << error.what() << '\n';
        return 1;
    }
    return 0;
}
