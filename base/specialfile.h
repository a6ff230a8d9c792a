#pragma once

#include <memory>
#include <QFile>
#include <QString>

namespace Tallymere {

// Opens what is no plain file for writing, as it is. It is not waited for that somebody reads a pipe. Gives the reason
// why it cannot be written; empty when it is open. A disk cannot, whatever the user may do.
QString openSpecialFile(const QString &path, QFile &file);

// While an object lives, writing to a pipe that nobody reads any more fails on this thread; otherwise it ends the program.
class QuietPipes
{
public:
    QuietPipes();
    ~QuietPipes();
    QuietPipes(const QuietPipes &) = delete;
    QuietPipes &operator=(const QuietPipes &) = delete;

private:
    struct Signals;
    std::unique_ptr<Signals> m_before;
};

} // namespace Tallymere
