#include <gtest/gtest.h>

#include <climits>

#include "vorn_std/VornStd.h"

using vorn_std::TimeSpec;

TEST(TimeSpecNormalisation, NanosecondsSettleInRange) {
    struct Case {
        long long seconds;
        long nanoseconds;
        long long wantSeconds;
        long wantNanoseconds;
    };
    const Case cases[] = {
        {5, -1, 4, 999999999},
        {1, 1500000000, 2, 500000000},
        {0, 999999999, 0, 999999999},
        {0, 1000000000, 1, 0},
        {0, -1000000000, -1, 0},
        {0, -1000000001, -2, 999999999},
        {-1, 0, -1, 0},
        {0, LONG_MAX, LONG_MAX / 1000000000, LONG_MAX % 1000000000},  // settles in one step
    };
    for (const Case& c : cases) {
        const TimeSpec t(c.seconds, c.nanoseconds);
        EXPECT_EQ(c.wantSeconds, t.getSeconds()) << c.seconds << "," << c.nanoseconds;
        EXPECT_EQ(c.wantNanoseconds, t.getNanoseconds()) << c.seconds << "," << c.nanoseconds;
    }
    TimeSpec set;
    set.setNanoseconds(-1);
    EXPECT_EQ(TimeSpec(-1, 999999999), set);
}

TEST(TimeSpecArithmetic, MillisecondsAndFieldwiseOperatorsCarry) {
    TimeSpec t(1, 0);
    t.addMilliseconds(-1);
    EXPECT_EQ(TimeSpec(0, 999000000), t);
    t.addMilliseconds(2500);
    EXPECT_EQ(TimeSpec(3, 499000000), t);
    EXPECT_EQ(TimeSpec(4, 100000000), TimeSpec(1, 600000000) + TimeSpec(2, 500000000));
    EXPECT_EQ(TimeSpec(-1, 900000000), TimeSpec(1, 0) - TimeSpec(1, 100000000));
    TimeSpec u(10, 0);
    u -= TimeSpec(0, 1);
    EXPECT_EQ(TimeSpec(9, 999999999), u);
    u += TimeSpec(0, 1);
    EXPECT_EQ(TimeSpec(10, 0), u);
    EXPECT_FALSE(TimeSpec(1, 0) == TimeSpec(1, 1));
}

TEST(TimeSpecClock, CurrentTimeIsTheWallClockInMilliseconds) {
    const unsigned long long before = vorn_std::TimeUtils::getCurrentTimeMs();
    const TimeSpec now = TimeSpec::getCurrentTime();
    const unsigned long long after = vorn_std::TimeUtils::getCurrentTimeMs();
    const unsigned long long nowMs =
        static_cast<unsigned long long>(now.getSeconds()) * 1000 + now.getNanoseconds() / 1000000;
    EXPECT_EQ(0, now.getNanoseconds() % 1000000);
    EXPECT_LE(before, nowMs);
    EXPECT_LE(nowMs, after);
    EXPECT_GT(now.getSeconds(), 1700000000);  // the epoch, not the monotonic clock
}
