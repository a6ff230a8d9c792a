#include "base/initfile.h"
#include "master/dialer.h"
#include "master/screens/dialerinv.h"
#include "master/screens/dialersetupinv.h"
#include "tests/support/files.h"
#include "tests/support/screentest.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// The far end of a serial line: what a modem on it would hear.
class Modem
{
public:
    Modem()
    {
        char name[64] = {};
        EXPECT_EQ(::openpty(&m_end, &m_line, name, nullptr, nullptr), 0);
        ::fcntl(m_end, F_SETFL, O_NONBLOCK);
        device = QString::fromLocal8Bit(name);
    }
    ~Modem() { unplug(); }

    // Until it is so long, or nothing more comes: what has been sent comes through by and by.
    QByteArray heard(const QByteArray &awaited = {})
    {
        constexpr int patience = 30'000;
        QByteArray all;
        char bytes[256];
        do {
            const auto count = ::read(m_end, bytes, sizeof bytes);
            all.append(bytes, std::max<qsizetype>(count, 0));
        } while (all.size() < awaited.size() && comesIn(patience));
        return all;
    }
    // Flow control: the line takes nothing until it is resumed. One that is merely full drains behind one's back.
    void stall() { EXPECT_EQ(::tcflow(m_line, TCOOFF), 0); }
    void resume() { EXPECT_EQ(::tcflow(m_line, TCOON), 0); }
    void unplug()
    {
        for (int *end : {&m_end, &m_line})
            ::close(std::exchange(*end, -1));
    }

    QString device;

private:
    bool comesIn(int within) const
    {
        pollfd end{m_end, POLLIN, 0};
        return ::poll(&end, 1, within) == 1;
    }

    int m_end = -1;
    int m_line = -1;
};

struct DialerTest : ScreenTest
{
    void writeFile(const QString &text) { putContent(path(), text.toUtf8()); }
    QString path() const { return m_folder.filePath(u"HX1.ini"_s); }

    Modem modem;

private:
    QTemporaryDir m_folder;

protected:
    const Dialer dialer{path()};
};

} // namespace

TEST_F(DialerTest, sendsNothingThatIsNoNumber)
{
    const QList<std::pair<QString, QString>> cases = {
        {u" +49 (30) 555/12.34 "_s, u"+49 (30) 555/12.34"_s},
        {u"9,555*1234#"_s, u"9,555*1234#"_s},
        {u"555-1234 ext. 12"_s, u"555-1234"_s},
        {u"Tel. 555-1234"_s, u"555-1234"_s},
        {u"555-1234;+++ATH0"_s, u"555-1234"_s},
        {u"555-1234\r\nATDT900"_s, u"555-1234"_s},
        {u"555\u2028\u0661234"_s, u"555"_s},
        {u"ask (Mary)"_s, {}},
        {u"1-800-FLOWERS"_s, {}},
    };
    for (const auto &[typed, sent] : cases)
        EXPECT_EQ(Dialer::dialableNumber(typed), sent) << qPrintable(typed);
}

TEST_F(DialerTest, saysWhyItCannotDial)
{
    const auto refusal = [this](const QString &number) {
        return refusalOf([&] { dialer.dial(number, prompts, [] { FAIL() << "dialed"; }); });
    };
    EXPECT_EQ(refusal(u"ask Mary"_s), u"Unable to dial number. -> "_s);
    EXPECT_EQ(refusal(u"  "_s), QString()) << "no number: nothing happens";

    writeFile(u"[General]\nDialerPort=com3\n[Ports]\nCOM3=/dev/none\n"_s);
    EXPECT_EQ(refusal(u"555"_s), u"Unable to open COM3 -> "_s);
    for (const char *unknown : {"com5", "com", "lpt1", "COM2"}) {
        writeFile(u"[General]\nDialerPort="_s + QLatin1StringView(unknown));
        EXPECT_EQ(dialer.port(), 0) << unknown;
        EXPECT_EQ(refusal(u"555"_s), u"Unable to open COM -> "_s);
    }
    writeFile(u"[Ports]\nCOM1=%1\n"_s.arg(modem.device));
    modem.stall();
    EXPECT_EQ(refusal(u"555"_s), u"Unable to dial number. -> "_s);
    modem.resume();
    EXPECT_EQ(modem.heard(), "") << "dialed after it was refused";
    modem.unplug();
    EXPECT_EQ(refusal(u"555"_s), u"Unable to open COM1 -> "_s);
}

TEST_F(DialerTest, screenStaysUntilItHasDialedThenTellsTheUserThenHangsUp)
{
    writeFile(u"[Ports]\nCOM1=/dev/none\nCOM2=%1\n"_s.arg(modem.device));
    auto *screen = new TfrmDialerInv(*context, dialer, mainWindow.get());
    screen->setParty(u"Mary"_s, u"555-1234"_s);
    const auto run = [&] { screen->exec(); };
    EXPECT_TRUE(whileOpen<TfrmDialerInv>(run, [&](TfrmDialerInv &dialog) {
        press(Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(prompts.last(), u"error: Unable to open COM1"_s);
        for (const bool kept : {false, true}) {
            const auto setUp = [&] { click(dialog, "btnSetup"); };
            EXPECT_TRUE(whileOpen<TfrmDialerSetupInv>(setUp, [&](TfrmDialerSetupInv &setup) {
                EXPECT_TRUE(child<QRadioButton>(setup, "optCOM1")->isChecked()) << "no port named yet";
                type(kept ? "<Down><Return>" : "<Down><Esc>");
            }));
            EXPECT_EQ(dialer.port(), kept ? 2 : 1);
        }
        prompts.onInform = [&] {
            EXPECT_FALSE(dialog.isVisible());
            EXPECT_EQ(modem.heard("ATDT555-1234\r\n"), "ATDT555-1234\r\n") << "not hung up before the user says so";
        };
        click(dialog, "btnOK");
        EXPECT_EQ(prompts.last(), u"inform: Pick up the phone.\nClick OK after dialing has completed."_s);
    }));
    EXPECT_EQ(modem.heard("ATH\r\n"), "ATH\r\n");
}
