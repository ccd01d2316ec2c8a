#include "support/FileSizeLimit.h"

#include <csignal>
#include <sys/resource.h>

FileSizeLimit::FileSizeLimit(quint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    m_before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = m_before;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}
