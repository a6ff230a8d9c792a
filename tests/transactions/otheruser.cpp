#include "tests/transactions/otheruser.h"

#include "transactions/receiptentry.h"
#include "transactions/receiptposting.h"

#include <cstdio>
#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int Patience = 120'000; // milliseconds

void takeNumbers(Engine::Database &database, int count)
{
    ScriptedPrompts prompts;
    ReceiptEntry entry(database, prompts);
    entry.open();
    for (int i = 0; i < count; ++i) {
        entry.newDocument();
        std::printf("%d %s\n", entry.key(), qPrintable(entry.header().text(u"ReceiptNo")));
        entry.cancel();
    }
}

void post(Engine::Database &database)
{
    ScriptedPrompts prompts;
    CountedProgress progress;
    ReceiptPosting(database).run(prompts, progress);
}

} // namespace

OtherUser::OtherUser(const TestStore &store, const QStringList &task)
{
    const bool local = store.store() == Store::Local;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(),
                    QStringList{u"--other-user"_s, local ? u"local"_s : u"remote"_s,
                                local ? store.directory() : store.remoteName()}
                        + task);
    EXPECT_TRUE(m_process.waitForStarted(Patience));
}

OtherUser::~OtherUser() { kill(); }

void OtherUser::kill()
{
    m_process.kill();
    m_process.waitForFinished(Patience);
}

bool OtherUser::finish()
{
    return m_process.waitForFinished(Patience) && m_process.exitStatus() == QProcess::NormalExit
        && m_process.exitCode() == 0;
}

QStringList OtherUser::output()
{
    return QString::fromUtf8(m_process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

int playOtherUser(const QStringList &arguments)
{
    if (arguments.value(1) != "--other-user"_L1)
        return -1;
    TestUser user(u"anna"_s, u"Corvane"_s);
    if (arguments.value(2) == "local"_L1) {
        user.database.directory = arguments.value(3);
    } else {
        user.session.type = Engine::SessionType::Remote;
        user.session.remoteAddress = u"127.0.0.1"_s;
        user.session.remoteUser = user.session.remotePassword = u"zorvadin"_s;
        user.database.remoteName = arguments.value(3);
    }
    try {
        if (arguments.value(4) == "post"_L1)
            post(user.database);
        else
            takeNumbers(user.database, arguments.value(5).toInt());
    } catch (const std::exception &error) {
        std::fprintf(stderr, "other user: %s\n", error.what());
        return 1;
    }
    return 0;
}
