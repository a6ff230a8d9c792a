#pragma once

#include <memory>
#include <QString>

class QSerialPort;

namespace Tallymere {

// A modem on a serial line, opened for writing: the one place that knows the platform's serial devices.
class ModemPort
{
public:
    // Takes a device by its name or path: "COM1", "ttyUSB0", "/dev/ttyS0".
    explicit ModemPort(const QString &device);
    ~ModemPort(); // closes the line
    ModemPort(const ModemPort &) = delete;
    ModemPort &operator=(const ModemPort &) = delete;

    // What this platform calls the ports COM1, COM2, ...
    static QString usualDevice(int port);

    bool open();
    // True when all of it is known to have gone out, which it waits for, but not for ever. What has not gone out by
    // then is dropped.
    bool send(const QByteArray &command);
    QString problem() const; // why the last step failed, in the system's words

private:
    std::unique_ptr<QSerialPort> m_line;
};

} // namespace Tallymere
