#include "widgets/clsTimer.h"

#include <QSignalSpy>

TEST(clsTimerTest, RunsUntilItsIntervalIsZero)
{
    clsTimer timer;
    QSignalSpy ticks(&timer, &clsTimer::ThatTime);
    timer.setInterval(1);
    EXPECT_EQ(1, timer.Interval());
    ASSERT_TRUE(ticks.wait());
    ASSERT_TRUE(ticks.wait());
    timer.setInterval(0);
    EXPECT_EQ(0, timer.Interval());
    ticks.clear();
    EXPECT_FALSE(ticks.wait(20));
}
