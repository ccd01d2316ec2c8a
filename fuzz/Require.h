#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program where a fuzzer, or the test of its corpus, sees it.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
}
