#include <gtest/gtest.h>

#include "internal/StaticLogControl.h"
#include "support/UnconfiguredLogTest.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::StaticLogControl;

using LogFunctionCallTest = vorn_test::UnconfiguredLogTest;

TEST_F(LogFunctionCallTest, BeginAndEndAroundTheScope) {
    {
        LogFunctionCall scope(L"vorn_std::A::run", L"Host", L"A.cpp", 10, DEBUG, true);
        scope.print(L"step %d", 1);
    }
    EXPECT_EQ("A.cpp[10] : Begin.\nA.cpp[10] : step 1\nA.cpp[10] : End.\n", capture.text());
}

TEST_F(LogFunctionCallTest, EndIsLoggedEvenWithoutBegin) {
    { LogFunctionCall scope(L"f", L"Host", L"A.cpp", 11, DEBUG, false); }
    EXPECT_EQ("A.cpp[11] : End.\n", capture.text());
}

TEST_F(LogFunctionCallTest, EndFollowsTheThresholdAtDestruction) {
    StaticLogControl::setCurrentThreshold(FATAL);
    StaticLogControl::setInitialized(true);
    {
        LogFunctionCall scope(L"f", L"Host", L"A.cpp", 12, DEBUG, true);  // not admitted
        StaticLogControl::setInitialized(false);                          // admitted again
    }
    EXPECT_EQ("A.cpp[12] : End.\n", capture.text());
}

TEST_F(LogFunctionCallTest, BelowTheThresholdNothingIsWritten) {
    {
        LogFunctionCall scope(L"f", L"Host", L"A.cpp", 13, CALL, L"Key <%ls>.", L"k");
        scope.print(L"never");
    }
    EXPECT_EQ("", capture.text());
}

TEST_F(LogFunctionCallTest, FormattedEntryReplacesBegin) {
    { LogFunctionCall scope(L"f", L"Host", L"A.cpp", 14, INFO, L"Begin. Key <%ls>.", L"k1"); }
    EXPECT_EQ("INFO : Begin. Key <k1>.\nINFO : End.\n", capture.text());
}

TEST_F(LogFunctionCallTest, FormatFailureIsReportedThenTheRawFormatIsUsed) {
    { LogFunctionCall scope(L"f", nullptr, nullptr, 15, WARN, L"bad %s", "\xff"); }
    EXPECT_EQ(
        "[15] : Error formatting message: Unable to format string: bad %s.\n"
        "WARN : bad %s\n"
        "WARN : End.\n",
        capture.text());
}
