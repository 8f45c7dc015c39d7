#include <gtest/gtest.h>

#include <stdlib.h>
#include <time.h>

#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

// 2024-02-29 13:04:05.006 UTC, printed in a zone two hours east.
constexpr int64_t EventSeconds = 1709211845;

class VornLogLayoutTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("TZ", "XXX-2", 1);
        tzset();
    }
    void TearDown() override {
        unsetenv("TZ");
        tzset();
    }

    static LogEvent event(LogEventPriority priority, const std::wstring& message) {
        LogEvent e(priority);
        e.setTime(EventSeconds, 6);
        e.setMessage(message);
        e.setFunction(L"vorn_std::File::exists");
        e.setThreadId(0x1a2b);
        return e;
    }
};

}  // namespace

TEST_F(VornLogLayoutTest, EveryBranchOfTheLine) {
    VornLogLayout plain(false);
    VornLogLayout debug(true);
    struct Case {
        const char* what;
        LogEvent event;
        VornLogLayout* layout;
        const wchar_t* line;
    };
    LogEvent numbered = event(INFO, L"Service started.");
    numbered.setErrorId(L"STD0009");
    LogEvent traced = event(DEBUG, L"looking");
    traced.setFileName(L"File.cpp");
    traced.setLineNumber(12);
    LogEvent noThread = event(DEBUG, L"x");
    noThread.setThreadId(Thread::InvalidThreadID);
    LogEvent threadZero = event(DEBUG, L"x");
    threadZero.setThreadId(0);
    LogEvent lineZero = event(WARN, L"x");
    lineZero.setFileName(L"A.cpp");
    lineZero.setLineNumber(0);
    LogEvent defaultLine = event(WARN, L"x");
    defaultLine.setFileName(L"A.cpp");
    const Case cases[] = {
        {"numbered", numbered, &plain, L"2024-02-29 15:04:05:006 INFO STD0009 Service started.\n"},
        {"traced", traced, &debug,
         L"2024-02-29 15:04:05:006 DEBUG [0x1a2b] File.cpp[12] vorn_std::File::exists: looking\n"},
        {"no thread", noThread, &debug, L"2024-02-29 15:04:05:006 DEBUG vorn_std::File::exists: x\n"},
        {"thread 0", threadZero, &debug,
         L"2024-02-29 15:04:05:006 DEBUG [0x0] vorn_std::File::exists: x\n"},
        {"line 0", lineZero, &plain, L"2024-02-29 15:04:05:006 WARN A.cpp x\n"},
        {"default line", defaultLine, &plain, L"2024-02-29 15:04:05:006 WARN A.cpp[4294967295] x\n"},
        {"ends in line feed", event(ERROR, L"two\n"), &plain, L"2024-02-29 15:04:05:006 ERROR two\n"},
        {"only a line feed", event(ERROR, L"\n"), &plain, L"2024-02-29 15:04:05:006 ERROR \n"},
        {"empty", event(FATAL, L""), &plain, L"2024-02-29 15:04:05:006 FATAL \n"},
        {"bad priority", event(static_cast<LogEventPriority>(12), L"m"), &plain,
         L"2024-02-29 15:04:05:006 Invalid Priority Specified m\n"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.line, c.layout->format(c.event)) << c.what;
    }
}

TEST_F(VornLogLayoutTest, FollowsTheZoneAndLeavesOutATimeThatCannotBeConverted) {
    VornLogLayout layout;
    EXPECT_EQ(L"2024-02-29 15:04:05:006 INFO a\n", layout.format(event(INFO, L"a")));
    setenv("TZ", "UTC0", 1);
    tzset();
    EXPECT_EQ(L"2024-02-29 13:04:05:006 INFO a\n", layout.format(event(INFO, L"a")));
    LogEvent far = event(INFO, L"far");
    far.setTime(INT64_MAX, 0);
    EXPECT_EQ(L"INFO far\n", layout.format(far));
}

TEST(LogFilters, LogFileTakesInfoAndUpDebugFileTakesAll) {
    LogFileFilter logFile;
    DebugFileFilter debugFile;
    for (int p = DUMP; p <= FATAL; ++p) {
        const LogEvent e(static_cast<LogEventPriority>(p));
        EXPECT_EQ(p >= INFO, logFile.decide(e) == 0) << p;
        EXPECT_EQ(0, debugFile.decide(e)) << p;
    }
    EXPECT_EQ(L"vorn_std.LogFileFilter", logFile.getClassName());
    EXPECT_EQ(L"vorn_std.DebugFileFilter", debugFile.getClassName());
}

TEST(LogEventCopy, TakesEveryFieldButTheModule) {
    LogEvent original(WARN);
    original.setModule(L"Host");
    original.setErrorId(L"STD0001");
    original.setMessage(L"m");
    original.setLineNumber(7);
    const LogEvent copy(original);
    EXPECT_EQ(L"", copy.getModule());
    EXPECT_EQ(L"STD0001", copy.getErrorId());
    EXPECT_EQ(L"m", copy.getMessage());
    EXPECT_EQ(7u, copy.getLineNumber());
    EXPECT_EQ(WARN, copy.getPriority());
    EXPECT_EQ(original.getTime().seconds, copy.getTime().seconds);
    const LogEvent fresh;
    EXPECT_EQ(Thread::InvalidThreadID, fresh.getThreadId());
    EXPECT_EQ(0xFFFFFFFFu, fresh.getLineNumber());
}
