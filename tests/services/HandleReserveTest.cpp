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
    QWidget shown;
    shown.show();
    const auto open = [] { return QDir("/proc/self/fd").entryList(QDir::System | QDir::AllEntries).size(); };
    const auto first = open();
    {
        const HandleReserve reserve(*qApp);
        for (int round = 0; round < 4; ++round) {
            std::list<QFile> files;
            do
                files.emplace_back("/dev/null");
            while (files.back().open(QIODevice::ReadOnly));
            QWidget window;
            round < 2 ? shown.resize(400 + round, 300) : window.show();
            EXPECT_EQ(files.back().open(QIODevice::ReadOnly), round != 1) << round << ": sizes are looked at in turn";
            files.clear();
            window.close();
        }
    }
    EXPECT_EQ(open(), first);
    ::setrlimit(RLIMIT_NOFILE, &before);
}
