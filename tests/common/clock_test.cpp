// The clock seam: a fixed clock for tests, the system's for the program.
#include "common/clock.h"

#include <gtest/gtest.h>

TEST(Clock, FixedClockGivesTheTimeItWasSetTo)
{
    FixedClock clock(QDateTime(QDate(2006, 9, 30), QTime(8, 15)));
    EXPECT_EQ(clock.today(), QDate(2006, 9, 30));
    clock.set(QDateTime(QDate(2026, 11, 21), QTime(0, 0)));
    EXPECT_EQ(clock.now(), QDateTime(QDate(2026, 11, 21), QTime(0, 0)));
    SystemClock system;
    EXPECT_LE(qAbs(system.now().secsTo(QDateTime::currentDateTime())), 2);
}
