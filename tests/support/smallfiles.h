#pragma once

#include <csignal>
#include <QtGlobal>
#include <sys/resource.h>

// While it lives, no file that this process writes grows beyond so many bytes: what a full disk or a quota does to a
// writer, without the right to mount one.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY(SmallFiles)

private:
    rlimit m_before{};
};
