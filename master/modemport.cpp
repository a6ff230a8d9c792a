#include "master/modemport.h"

#include <QDeadlineTimer>
#include <QSerialPort>
#include <QThread>

#include <sys/ioctl.h>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Hands all of it to the system, which takes no more than its buffer holds while the modem accepts nothing.
bool written(QSerialPort &line, const QByteArray &command, const QDeadlineTimer &end)
{
    if (line.write(command) != command.size())
        return false;
    while (line.bytesToWrite() > 0) {
        if (!line.waitForBytesWritten(static_cast<int>(end.remainingTime())))
            return false;
    }
    return true;
}

// What the system has taken is not on the wire yet: a modem that holds the line stops it there. The system's own
// wait for that knows no end.
bool wentOut(const QSerialPort &line, const QDeadlineTimer &end)
{
    constexpr unsigned long glance = 5;
    int unsent = 0;
    while (::ioctl(line.handle(), TIOCOUTQ, &unsent) == 0 && unsent > 0) {
        if (end.hasExpired())
            return false;
        QThread::msleep(glance);
    }
    return true;
}

} // namespace

ModemPort::ModemPort(const QString &device)
    : m_line(std::make_unique<QSerialPort>(device))
{
}

ModemPort::~ModemPort() = default;

QString ModemPort::usualDevice(int port) { return u"/dev/ttyS%1"_s.arg(port - 1); }

bool ModemPort::open() { return m_line->open(QIODevice::WriteOnly); }

bool ModemPort::send(const QByteArray &command)
{
    constexpr int patience = 2000; // twice what the slowest modem takes for a long number
    const QDeadlineTimer end(patience);
    if (written(*m_line, command, end) && wentOut(*m_line, end))
        return true;
    // Or it would go out when nobody wants it any more, and closing the line would wait for it.
    m_line->clear(QSerialPort::Output);
    return false;
}

QString ModemPort::problem() const { return m_line->errorString(); }

} // namespace Tallymere
