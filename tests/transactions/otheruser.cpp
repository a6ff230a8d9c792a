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
    SpokenPrompts prompts;
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
    SpokenPrompts prompts;
    CountedProgress progress;
    ReceiptPosting(database).run(prompts, progress);
}

} // namespace

OtherUser::OtherUser(const TestStore &store, const QStringList &task)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), QStringList(u"--other-user"_s) + store.place() + task);
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
    TestUser user(arguments.mid(2));
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
