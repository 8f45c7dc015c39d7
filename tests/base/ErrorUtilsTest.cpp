#include <gtest/gtest.h>

#include <cerrno>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(ErrorUtilsChecks, IsNullExThrowsAndLogsTheNameText) {
    vorn_test::DebugCapture capture;
    int value = 0;
    EXPECT_NO_THROW(ErrorUtils::isNullEx(&value, L"vorn_std::X::f", L"buffer"));
    try {
        ErrorUtils::isNullEx(nullptr, L"vorn_std::X::f", L"buffer");
        FAIL() << "no exception";
    } catch (const VornIllegalArgumentException& e) {
        EXPECT_EQ(L"buffer value is NULL.", e.getMessage());
    }
    const auto lines = capture.lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ErrorUtils.cpp[", lines[0].substr(0, 15));
    EXPECT_EQ("] : buffer value is NULL.", lines[0].substr(lines[0].find(']')));
}

TEST(ErrorUtilsChecks, IsNotNullExIsTheMirror) {
    int value = 0;
    EXPECT_NO_THROW(ErrorUtils::isNotNullEx(nullptr, L"f", L"slot"));
    try {
        ErrorUtils::isNotNullEx(&value, L"f", L"slot");
        FAIL() << "no exception";
    } catch (const VornIllegalArgumentException& e) {
        EXPECT_EQ(L"slot value is not NULL.", e.getMessage());
    }
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
