#include "platform/SignalWatcher.h"

TEST(SignalWatcher, RequestsToEndArriveInTheEventLoop)
{
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    std::vector<int> requests;
    {
        SignalWatcher watcher;
        QObject::connect(&watcher, &SignalWatcher::endRequested, [&](int number) { requests.push_back(number); });
        for (int number : {SIGTERM, SIGHUP, SIGINT, SIGPIPE, SIGXFSZ})
            std::raise(number);
        EXPECT_TRUE(requests.empty());
        QCoreApplication::processEvents();
        EXPECT_EQ(requests, (std::vector<int>{SIGTERM, SIGINT}));
    }
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}
