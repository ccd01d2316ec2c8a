#pragma once

#include <sys/resource.h>

/// While it lives, no file of this process can grow beyond a size: writes come up short as on a full disk.
struct FileSizeLimit
{
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before); }

    rlimit before = {};
};
