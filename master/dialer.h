#pragma once

#include <functional>
#include <QString>

namespace Tallymere {

class Prompts;

// Has a modem dial a phone number. Which port the modem is on stands in the host's initialization file: section
// "General", key "DialerPort", "com1" to "com4"; "com1" when there is no such key. Section "Ports" may name the device
// behind a port ("COM1=/dev/ttyUSB0").
class Dialer
{
public:
    static constexpr int ports = 4;

    explicit Dialer(QString initFile);

    int port() const; // 1 to 4; 0 when the file names none of them
    // Writes the port into the file; throws RuleError when the file cannot be written.
    void setPort(int port) const;
    QString deviceOf(int port) const;

    // The number in a text, as a modem may be sent it: up to what cannot belong to it, such as a letter, a line break
    // or the semicolon after which a modem expects another command. Empty when there is none, or when it is spelt in
    // letters.
    static QString dialableNumber(const QString &text);

    // Dials, tells the user to take over, and hangs up when he has. Does nothing when there is no number. Calls
    // `dialed` once the number is on its way. Throws RuleError when the port cannot be opened or written to.
    void dial(const QString &number, Prompts &prompts, const std::function<void()> &dialed) const;

private:
    QString m_initFile;
};

} // namespace Tallymere
