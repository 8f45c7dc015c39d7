#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include "support/DebugCapture.h"
#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(ErrorUtilsChecks, IsNullExThrowsAndLogsTheNameText) {
    vorn_test::DebugCapture capture;
    int value = 0;
    EXPECT_NO_THROW(ErrorUtils::isNullEx(&value, L"vorn_std::X::f", L"buffer"));
    EXPECT_EQ(L"buffer value is NULL.", vorn_test::messageOf<VornIllegalArgumentException>([&] {
                  ErrorUtils::isNullEx(nullptr, L"vorn_std::X::f", L"buffer");
              }));
    const auto lines = capture.lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ErrorUtils.cpp[", lines[0].substr(0, 15));
    EXPECT_EQ("] : buffer value is NULL.", lines[0].substr(lines[0].find(']')));
}

TEST(ErrorUtilsChecks, IsNotNullExIsTheMirror) {
    int value = 0;
    EXPECT_NO_THROW(ErrorUtils::isNotNullEx(nullptr, L"f", L"slot"));
    EXPECT_EQ(L"slot value is not NULL.", vorn_test::messageOf<VornIllegalArgumentException>([&] {
                  ErrorUtils::isNotNullEx(&value, L"f", L"slot");
              }));
}

TEST(ErrorUtilsChecks, IsNullAnswersWithTheDebugLineAsSideEffect) {
    vorn_test::DebugCapture capture;
    int value = 0;
    EXPECT_TRUE(ErrorUtils::isNull(nullptr, L"f", L"p"));
    EXPECT_FALSE(ErrorUtils::isNull(&value, L"f", L"p"));
    EXPECT_TRUE(ErrorUtils::isNotNull(&value, L"f", L"q"));
    EXPECT_FALSE(ErrorUtils::isNotNull(nullptr, L"f", L"q"));
    const auto lines = capture.lines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_NE(std::string::npos, lines[0].find(" : p value is NULL."));
    EXPECT_NE(std::string::npos, lines[1].find(" : q value is not NULL."));
}

TEST(ErrorUtilsDescriptions, KnownNumberGivesCodeColonTrimmedText) {
    EXPECT_EQ(L"2:No such file or directory", ErrorUtils::getErrorDescription(ENOENT));
    EXPECT_EQ(L"13:Permission denied", ErrorUtils::getWindowsErrorDescription(EACCES));
}

TEST(ErrorUtilsDescriptions, UnknownNumberGivesCodeAndColonOnly) {
    EXPECT_EQ(L"99999:", ErrorUtils::getErrorDescription(99999));
    EXPECT_EQ(L"-5:", ErrorUtils::getErrorDescription(-5));
}

TEST(ErrorUtilsDescriptions, LastErrorIsTheThreadsErrno) {
    errno = EBADF;
    EXPECT_EQ(EBADF, ErrorUtils::getLastError());
    errno = EBADF;
    EXPECT_EQ(L"9:Bad file descriptor", ErrorUtils::getLastErrorDescription());
}

TEST(ErrorUtilsChecks, ValueChecksThrowTheirFixedTexts) {
    struct Case {
        std::function<void()> check;
        const wchar_t* text;
    };
    const Case cases[] = {
        {[] { ErrorUtils::isEmptyEx(L"", L"f", L"name"); }, L"name value is empty."},
        {[] { ErrorUtils::isEqualEx(L"a", L"a", L"f", L"source", L"target"); },
         L"source value is equal to target."},
        {[] { ErrorUtils::isBelowMinimumEx(0, 1, L"f", L"Heart beat interval"); },
         L"Heart beat interval value 0 is below minimum of 1."},
        {[] { ErrorUtils::isAboveMaximumEx(81, 80, L"f", L"Key length"); },
         L"Key length value 81 is above maximum of 80."},
        {[] { ErrorUtils::isOutsideRangeEx(11, 0, 10, L"f", L"Capacity"); },
         L"Capacity value 11 is outside minimum of 0 and maximum of 10."},
    };
    for (const Case& c : cases) {
        try {
            c.check();
            ADD_FAILURE() << "no exception for " << testing::PrintToString(std::wstring(c.text));
        } catch (const VornIllegalArgumentException& e) {
            EXPECT_EQ(c.text, e.getMessage());
        }
    }
    EXPECT_NO_THROW(ErrorUtils::isEmptyEx(L"x", L"f", L"name"));
    EXPECT_NO_THROW(ErrorUtils::isEqualEx(L"a", L"b", L"f", L"a", L"b"));
    EXPECT_NO_THROW(ErrorUtils::isBelowMinimumEx(1, 1, L"f", L"n"));
    EXPECT_NO_THROW(ErrorUtils::isAboveMaximumEx(80, 80, L"f", L"n"));
    EXPECT_NO_THROW(ErrorUtils::isOutsideRangeEx(0, 0, 10, L"f", L"n"));
    EXPECT_NO_THROW(ErrorUtils::isOutsideRangeEx(10, 0, 10, L"f", L"n"));
}
