#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using vorn_std::TimeUtils;

namespace {

// Fixes the local zone for the test's duration.
class TimeUtilsTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("TZ", "UTC0", 1);
        tzset();
    }
    void TearDown() override {
        unsetenv("TZ");
        tzset();
    }
};

}  // namespace

TEST_F(TimeUtilsTest, TimestampHasDotMillisecondsAndNoTrailingBlank) {
    EXPECT_EQ(L"1970-01-01 00:00:01.234", TimeUtils::getTimestampForTimeMs(1234));
    EXPECT_EQ(L"2024-02-29 23:59:59.007", TimeUtils::getTimestampForTimeMs(1709251199007ULL));
    EXPECT_EQ(4, TimeUtils::getWeekdayForTimeMs(0));  // a Thursday
}

TEST_F(TimeUtilsTest, FormatTimeReplacesEveryMillisecondTokenFirst) {
    EXPECT_EQ(L"234", TimeUtils::formatTime(L"%s", 1234));
    EXPECT_EQ(L"00:00:01.5 (5)", TimeUtils::formatTime(L"%H:%M:%S.%s (%s)", 1005));
    EXPECT_EQ(L"1970", TimeUtils::formatTime(L"%Y", 0));
}

TEST_F(TimeUtilsTest, FormatTimeRefusesEmptyAndOversizedResults) {
    const std::wstring tooLong(3000, L'x');
    for (const wchar_t* format : {L"", tooLong.c_str()}) {
        EXPECT_EQ(L"Unable to format time string, resulting string is too large.",
                  vorn_test::messageOf<vorn_std::VornIllegalArgumentException>(
                      [&] { TimeUtils::formatTime(format, 0); }));
    }
}

TEST_F(TimeUtilsTest, ZoneNamesFollowTheEnvironment) {
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    EXPECT_EQ(L"CET", TimeUtils::getTimezone());
    EXPECT_EQ(L"CEST", TimeUtils::getDSTZone());
}
