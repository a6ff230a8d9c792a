#include "master/modemport.h"

#include <QSerialPort>

#ifdef Q_OS_UNIX
#include <termios.h>
#endif

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Closing a line drops what it has not sent yet.
void drain(const QSerialPort &line)
{
#ifdef Q_OS_UNIX
    ::tcdrain(line.handle());
#else
    Q_UNUSED(line);
#endif
}

} // namespace

ModemPort::ModemPort(const QString &device)
    : m_line(std::make_unique<QSerialPort>(device))
{
}

ModemPort::~ModemPort() = default;

QString ModemPort::usualDevice(int port)
{
#ifdef Q_OS_WIN
    return u"COM%1"_s.arg(port);
#else
    return u"/dev/ttyS%1"_s.arg(port - 1);
#endif
}

bool ModemPort::open() { return m_line->open(QIODevice::WriteOnly); }

bool ModemPort::send(const QByteArray &command)
{
    constexpr int patience = 1000;
    if (m_line->write(command) != command.size())
        return false;
    while (m_line->bytesToWrite() > 0) {
        if (!m_line->waitForBytesWritten(patience))
            return false;
    }
    drain(*m_line);
    return true;
}

QString ModemPort::problem() const { return m_line->errorString(); }

} // namespace Tallymere
