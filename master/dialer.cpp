#include "master/dialer.h"

#include "base/initfile.h"
#include "base/prompts.h"
#include "base/ruleerror.h"
#include "base/trace.h"
#include "master/modemport.h"
#include "master/texts.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString settingOf(int port) { return u"com%1"_s.arg(port); }
QString nameOf(int port) { return u"COM%1"_s.arg(port); }

} // namespace

Dialer::Dialer(QString initFile)
    : m_initFile(std::move(initFile))
{
}

int Dialer::port() const
{
    const QString setting = InitFile(m_initFile).value(Settings::DialerPort);
    for (int port = 1; port <= ports; ++port) {
        if (setting == settingOf(port))
            return port;
    }
    return 0;
}

void Dialer::setPort(int port) const
{
    if (!InitFile(m_initFile).setValue(Settings::DialerPort, settingOf(port)))
        throw RuleError(MasterTexts::tr("The port cannot be saved: %1 cannot be written.").arg(m_initFile));
}

QString Dialer::deviceOf(int port) const
{
    const QString named = InitFile(m_initFile).value(Settings::dialerDevice(nameOf(port)));
    return named.isEmpty() ? ModemPort::usualDevice(port) : named;
}

QString Dialer::dialableNumber(const QString &text)
{
    // Modems pass over the marks that people write into numbers; a comma is a pause.
    static const QRegularExpression number(u"\\(?[0-9+*#][0-9+*#() .,/-]*"_s);
    const QRegularExpressionMatch found = number.match(text);
    const QString digits = found.captured();
    // "1-800-FLOWERS" would be another number without its letters.
    if (digits.endsWith(u'-') && text.mid(found.capturedEnd(), 1).isUpper())
        return {};
    return digits.trimmed();
}

void Dialer::dial(const QString &number, Prompts &prompts, const std::function<void()> &dialed) const
{
    if (number.trimmed().isEmpty())
        return;
    const QString digits = dialableNumber(number);
    if (digits.isEmpty())
        throw RuleError(MasterTexts::tr("Unable to dial number."));

    const int chosen = port();
    if (chosen == 0)
        throw RuleError(MasterTexts::tr("Unable to open %1").arg("COM"_L1));
    ModemPort modem(deviceOf(chosen));
    if (!modem.open()) {
        qCDebug(trace) << nameOf(chosen) << deviceOf(chosen) << modem.problem();
        throw RuleError(MasterTexts::tr("Unable to open %1").arg(nameOf(chosen)));
    }
    if (!modem.send("ATDT" + digits.toLatin1() + "\r\n"))
        throw RuleError(MasterTexts::tr("Unable to dial number."));
    dialed();
    prompts.inform(MasterTexts::tr("Pick up the phone.\nClick OK after dialing has completed."));
    modem.send("ATH\r\n");
}

} // namespace Tallymere
