// The waits of one and two seconds: the time passes with timers served, and
// the seam replaces the wait in tests.
#include "shell/logic/waits.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

TEST(WaitSeconds, LastsTheSecondAndServesTimersMeanwhile)
{
    bool timerRan = false;
    QTimer::singleShot(50, [&] { timerRan = true; });
    QElapsedTimer clock;
    clock.start();
    WaitSeconds(1);
    EXPECT_GE(clock.elapsed(), 1000);
    EXPECT_LT(clock.elapsed(), 1900);
    EXPECT_TRUE(timerRan);
}

TEST(WaitSeconds, TheSeamTakesTheWaitsPlace)
{
    QList<int> asked;
    WaitSeam::set([&](int seconds) { asked << seconds; });
    QElapsedTimer clock;
    clock.start();
    WaitSeconds(2);
    WaitSeconds(1);
    WaitSeam::clear();
    EXPECT_LT(clock.elapsed(), 500);
    EXPECT_EQ(asked, QList<int>({2, 1}));
}
