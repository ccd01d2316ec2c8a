#include "services/desktop/HandleReserve.h"

#include <sys/resource.h>

TEST(HandleReserve, GivesHandlesBackWhenAWindowNeedsThemAndTakesThemAgainLater)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer takes every object for a broken one when it has no handle left to look at it";
#endif
    rlimit before = {};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit few{128, before.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
    const HandleReserve reserve(*qApp);
    QWidget().show(); // while there are plenty
    for (int round = 0; round < 2; ++round) {
        std::list<QFile> files;
        do
            files.emplace_back("/dev/null");
        while (files.back().open(QIODevice::ReadOnly));
        QWidget window;
        window.show();
        EXPECT_TRUE(files.back().open(QIODevice::ReadOnly)) << round;
        window.resize(300, 300);
        EXPECT_TRUE(QFile("/dev/null").open(QIODevice::ReadOnly)) << "what was given back is not taken at once";
        files.clear();
        window.close();
    }
    ::setrlimit(RLIMIT_NOFILE, &before);
}
