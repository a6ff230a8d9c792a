#include "tests/support/otheruser.h"
#include "tests/support/complaints.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {
constexpr int Patience = 120'000; // milliseconds
} // namespace

OtherUser::OtherUser(const QStringList &place, const QStringList &task)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), QStringList(u"--other-user"_s) + place + task);
    EXPECT_TRUE(m_process.waitForStarted(Patience));
}

OtherUser::~OtherUser() { kill(); }

void OtherUser::kill()
{
    m_process.kill();
    m_process.waitForFinished(Patience);
}

void OtherUser::tell(const QString &order)
{
    m_process.write((order + u'\n').toUtf8());
    m_process.waitForBytesWritten(Patience);
}

QString OtherUser::ask(const QString &order)
{
    tell(order);
    return line();
}

QString OtherUser::line()
{
    while (!m_process.canReadLine() && m_process.waitForReadyRead(Patience)) { }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

bool OtherUser::finish()
{
    return m_process.waitForFinished(Patience) && m_process.exitStatus() == QProcess::NormalExit
        && m_process.exitCode() == 0;
}

QStringList OtherUser::output() { return QString::fromUtf8(rest()).split(u'\n', Qt::SkipEmptyParts); }

int runTests(int argc, char **argv, const OtherUserTasks &tasks)
{
    std::optional<QCoreApplication> application; // unless there is one that has windows
    if (!qApp)
        application.emplace(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != "--other-user"_L1) {
        testing::InitGoogleTest(&argc, argv);
        failOnComplaints();
        return RUN_ALL_TESTS();
    }
    TestUser user(arguments.mid(2));
    try {
        tasks.value(arguments.value(4))(user.database, arguments.mid(5));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "other user: %s\n", error.what());
        return 1;
    }
    return 0;
}
