#include <gtest/gtest.h>

#include "internal/StaticLogControl.h"
#include "support/UnconfiguredLogTest.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::StaticLogControl;

using StaticLogTest = vorn_test::UnconfiguredLogTest;

TEST(LogEventPriorityText, NamesInOrderAndInvalidValues) {
    const wchar_t* names[] = {L"DUMP", L"TRACE", L"CALL", L"DEBUG",
                              L"INFO", L"WARN",  L"ERROR", L"FATAL"};
    for (int p = 0; p < 8; ++p) {
        EXPECT_EQ(names[p], logEventPriorityToString(static_cast<LogEventPriority>(p)));
        EXPECT_EQ(p, logEventPriorityFromString(names[p], FATAL));
        EXPECT_EQ(p < 4, isDebugEventPriority(static_cast<LogEventPriority>(p)));
    }
    EXPECT_EQ(L"Invalid Priority Specified", logEventPriorityToString(static_cast<LogEventPriority>(8)));
    EXPECT_EQ(L"Invalid Priority Specified", logEventPriorityToString(static_cast<LogEventPriority>(-1)));
}

TEST(LogEventPriorityText, ParsingIsExactAndCaseSensitive) {
    EXPECT_EQ(WARN, logEventPriorityFromString(L"debug", WARN));
    EXPECT_EQ(WARN, logEventPriorityFromString(L" DEBUG", WARN));
    EXPECT_EQ(WARN, logEventPriorityFromString(L"", WARN));
}

TEST_F(StaticLogTest, UnconfiguredThresholdIsDebug) {
    EXPECT_TRUE(StaticLog::isThresholdOn(DEBUG));
    EXPECT_TRUE(StaticLog::isThresholdOn(FATAL));
    EXPECT_FALSE(StaticLog::isThresholdOn(CALL));
    EXPECT_TRUE(__internal_debug_on());
    EXPECT_FALSE(__internal_call_on());
    EXPECT_FALSE(__internal_trace_on());
    EXPECT_FALSE(__internal_dump_on());
}

TEST_F(StaticLogTest, ConfiguredThresholdCountsOnlyWhileInitialized) {
    StaticLogControl::setCurrentThreshold(WARN);
    EXPECT_EQ(WARN, StaticLog::getThreshold());
    EXPECT_TRUE(StaticLog::isThresholdOn(DEBUG));  // not initialized: DEBUG still counts
    StaticLogControl::setInitialized(true);
    EXPECT_FALSE(StaticLog::isThresholdOn(INFO));
    EXPECT_TRUE(StaticLog::isThresholdOn(WARN));
    StaticLogControl::setCurrentThreshold(DUMP);
    EXPECT_TRUE(StaticLog::isThresholdOn(DUMP));
    StaticLogControl::setInitialized(false);
    EXPECT_FALSE(StaticLog::isThresholdOn(DUMP));
    EXPECT_EQ(DUMP, StaticLog::getThreshold());
}

TEST_F(StaticLogTest, UnconfiguredLinesByteForByte) {
    StaticLog::log(INFO, L"f", L"service started", L"Host", L"STD0001", 7, L"Host.cpp", 12);
    StaticLog::log(FATAL, L"f", L"already ends\n", L"Host", L"", 7, L"Host.cpp", 13);
    StaticLog::log(DEBUG, L"f", L"opened \u00e9t\u00e9", L"Host", L"", 7, L"Host.cpp", 14);
    StaticLog::log(TRACE, L"f", L"", L"Host", L"", 7, L"Host.cpp", 4294967295u);
    StaticLog::log(WARN, L"f", L"", L"Host", L"", 7, L"Host.cpp", 1);
    StaticLog::log(static_cast<LogEventPriority>(9), L"f", L"odd", L"Host", L"", 7, L"H.cpp", 1);
    EXPECT_EQ(
        "INFO : service started\n"
        "FATAL : already ends\n"
        "Host.cpp[14] : opened \xC3\xA9t\xC3\xA9\n"
        "Host.cpp[4294967295] : \n"
        "WARN : \n"
        "Invalid Priority Specified : odd\n",
        capture.text());
}

TEST_F(StaticLogTest, ConfiguredWithoutInstanceDropsTheEvent) {
    StaticLogControl::setInitialized(true);
    StaticLog::log(FATAL, L"f", L"nowhere", L"Host", L"", 7, L"Host.cpp", 1);
    EXPECT_EQ("", capture.text());
}

TEST_F(StaticLogTest, InternalEntryPointsFormatWithFileAndLine) {
    __internal_debug(L"vorn_std::X::f", L"X.cpp", 77, L"value <%ls> count %d", L"k", 3);
    __internal_trace(L"vorn_std::X::f", L"X.cpp", 78, L"trace %d", 1);
    EXPECT_EQ("X.cpp[77] : value <k> count 3\nX.cpp[78] : trace 1\n", capture.text());
}

TEST_F(StaticLogTest, FormattingFailureBecomesTheStatementsText) {
    __internal_debug(L"f", L"X.cpp", 5, L"bad %s", "\xff");
    ContextLogMessage::log(ERROR, L"f", L"Host", L"", 1, L"X.cpp", 6, nullptr);
    EXPECT_EQ("X.cpp[5] : Unable to format string: bad %s\nERROR : Format string cannot be null!\n",
              capture.text());
}

TEST_F(StaticLogTest, ContextLogMessageMemberUsesItsFields) {
    const ContextLogMessage context(L"vorn_std::Y::g", WARN, L"Host", L"Y.cpp", 9);
    context.log(L"%ls=%d", L"retries", 4);
    const ContextLogMessage debugContext(L"vorn_std::Y::g", DEBUG, L"Host", L"Y.cpp", 10);
    debugContext.log(L"plain");
    EXPECT_EQ("WARN : retries=4\nY.cpp[10] : plain\n", capture.text());
}

TEST_F(StaticLogTest, DebugOutputGoesNowhereWhenTold) {
    setenv("VORNSTD_DEBUG_OUTPUT", "none", 1);
    StaticLog::log(FATAL, L"f", L"discarded", L"Host", L"", 1, L"X.cpp", 1);
    setenv("VORNSTD_DEBUG_OUTPUT", capture.path().c_str(), 1);
    EXPECT_EQ("", capture.text());
}
