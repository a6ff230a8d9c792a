#include "host/hostoptions.h"
#include "host/moduleloader.h"

#include <QApplication>
#include <QProcess>
#include <QStyle>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(HostOptions, AreReadAndRefused)
{
    const QTemporaryDir folder;
    const HostOptions good = readOptions({u"host"_s, u"--module"_s, u"m.so"_s, u"--user=anna"_s, u"--data"_s,
                                          folder.path(), u"--open"_s, u"--look=dark"_s});
    EXPECT_EQ((QStringList{good.module, good.user, good.data}), (QStringList{u"m.so"_s, u"anna"_s, folder.path()}));
    EXPECT_TRUE(good.outcome == HostOptions::Outcome::Start && good.open && good.look == HostLook::Dark);
    const HostOptions plain = readOptions({u"host"_s});
    EXPECT_TRUE(plain.outcome == HostOptions::Outcome::Start && !plain.user.isEmpty() && !plain.open);

    for (const QStringList &wrong : {QStringList{u"--data"_s, u"/nowhere/kitchen"_s}, QStringList{u"--data"_s},
                                     QStringList{u"file"_s}, QStringList{u"--look"_s, u"dusk"_s}}) {
        const HostOptions refused = readOptions(QStringList{u"host"_s} + wrong);
        EXPECT_EQ(refused.outcome, HostOptions::Outcome::Refuse) << qPrintable(wrong.join(u' '));
        EXPECT_FALSE(refused.message.isEmpty());
    }
}

TEST(HostOptions, ProgramAnswersWithoutADisplay)
{
    const std::tuple<QString, int, QByteArray> cases[] = {{u"--help"_s, 0, "--data"},
                                                          {u"--version"_s, 0, "host " TALLYMERE_VERSION "\n"},
                                                          {u"--bogus"_s, 2, "bogus"}};
    for (const auto &[argument, status, answer] : cases) {
        QProcess host;
        host.setProcessChannelMode(QProcess::MergedChannels);
        host.start(u"env"_s, {u"QT_QPA_PLATFORM=none"_s, QStringLiteral(HOST_PROGRAM), argument});
        ASSERT_TRUE(host.waitForFinished(120'000));
        EXPECT_TRUE(host.exitStatus() == QProcess::NormalExit && host.exitCode() == status) << host.exitCode();
        const QByteArray said = host.readAll();
        EXPECT_TRUE(said.contains(answer)) << said.constData();
    }
}

TEST(HostLook, IsDarkWhereTheDesktopAsksForItAndHasNoLookOfItsOwn)
{
    const auto isDark = [] {
        const QPalette palette = QApplication::palette();
        return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
    };
    const QString before = QApplication::style()->name();
    QApplication::setPalette(QPalette(Qt::blue)); // a desktop with colours of its own
    qputenv("GTK_THEME", "Adwaita:dark");
    takeLook(HostLook::Desktop);
    EXPECT_EQ(QApplication::palette().color(QPalette::Button), QColor(Qt::blue));
    QApplication::setPalette(QApplication::style()->standardPalette());
    takeLook(HostLook::Desktop);
    EXPECT_TRUE(isDark());
    takeLook(HostLook::Light);
    EXPECT_FALSE(isDark());
    QApplication::setStyle(before);
    QApplication::setPalette(QApplication::style()->standardPalette());
}
