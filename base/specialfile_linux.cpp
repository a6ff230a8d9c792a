#include "base/specialfile.h"

#include "base/texts.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QtGlobal>
#include <sys/stat.h>
#include <unistd.h>

namespace Tallymere {

namespace {

sigset_t brokenPipe()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

bool isPending()
{
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
}

} // namespace

QString openSpecialFile(const QString &path, QFile &file)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat kind = {};
    if (::stat(name.constData(), &kind) == 0 && S_ISBLK(kind.st_mode))
        return BaseTexts::tr("This is a disk, not a file.");
    const int handle = ::open(name.constData(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0 && errno == ENXIO && S_ISFIFO(kind.st_mode))
        return BaseTexts::tr("Nobody reads from this pipe.");
    if (handle < 0)
        return qt_error_string(errno);
    ::fcntl(handle, F_SETFL, ::fcntl(handle, F_GETFL) & ~O_NONBLOCK);
    if (file.open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        return {};
    ::close(handle);
    return file.errorString();
}

struct QuietPipes::Signals
{
    sigset_t blocked = {};
    bool pending = false;
};

QuietPipes::QuietPipes()
    : m_before(std::make_unique<Signals>())
{
    m_before->pending = isPending();
    const sigset_t set = brokenPipe();
    pthread_sigmask(SIG_BLOCK, &set, &m_before->blocked);
}

QuietPipes::~QuietPipes()
{
    const sigset_t set = brokenPipe();
    const timespec atOnce = {};
    if (!m_before->pending && isPending())
        sigtimedwait(&set, nullptr, &atOnce);
    pthread_sigmask(SIG_SETMASK, &m_before->blocked, nullptr);
}

} // namespace Tallymere
