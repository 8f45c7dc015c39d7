// The static log once configured in code, as the log's .cfg file will do:
// statements reach the appenders by the configured threshold.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "internal/StaticLogControl.h"
#include "support/DebugCapture.h"
#include "support/LogDoubles.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::StaticLogControl;
using vorn_test::CapturingAppender;

namespace {

std::shared_ptr<CapturingAppender> configured;

// Configures the process's log once, before any test runs.
class ConfiguredLog : public testing::Environment {
public:
    void SetUp() override {
        configured = std::make_shared<CapturingAppender>(std::make_shared<VornLogLayout>(true));
        StaticLogControl::initInstance(L"TestHost", {configured}, TRACE);
    }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new ConfiguredLog);

std::wstring tail(const std::wstring& line) { return line.substr(24); }  // after the time stamp

}  // namespace

TEST(ConfiguredStaticLog, StatementsReachTheAppendersByTheThreshold) {
    vorn_test::DebugCapture capture;
    configured->lines.clear();
    EXPECT_TRUE(StaticLog::isThresholdOn(TRACE));
    EXPECT_FALSE(StaticLog::isThresholdOn(DUMP));
    EXPECT_EQ(TRACE, StaticLog::getThreshold());
    __internal_trace(L"vorn_std::X::f", L"X.cpp", 5, L"count %d", 3);
    ContextLogMessage::log(INFO, L"vorn_std::X::g", L"Host", L"STD0009", 0x2a, L"", 0, L"%ls",
                           L"numbered");
    ASSERT_EQ(2u, configured->lines.size());
    const std::wstring thread = [] {
        wchar_t text[32];
        swprintf(text, 32, L"%llx", Thread::getCurrentThreadId());
        return std::wstring(text);
    }();
    EXPECT_EQ(L"TRACE [0x" + thread + L"] X.cpp[5] vorn_std::X::f: count 3\n",
              tail(configured->lines[0]));
    EXPECT_EQ(L"INFO [0x2a] STD0009 vorn_std::X::g: numbered\n", tail(configured->lines[1]));
    EXPECT_EQ("", capture.text());  // nothing went to the debugger output
}

TEST(ConfiguredStaticLog, SecondInitialisationChangesNothing) {
    StaticLogControl::initInstance(L"OtherHost", {}, FATAL);
    EXPECT_EQ(L"TestHost", StaticLog::getModuleName());
    EXPECT_EQ(TRACE, StaticLog::getThreshold());
}

TEST(ConfiguredStaticLog, VectorAppenderAttachesItselfAndLeavesOnDestruction) {
    {
        VectorLogAppender vector;
        ContextLogMessage::log(WARN, L"f", L"Host", L"", 1, L"", 0, L"kept");
        const auto statements = vector.getLogStatements();
        ASSERT_EQ(1u, statements.size());
        EXPECT_EQ(L"WARN kept\n", tail(statements[0]));
        vector.clear();
        EXPECT_TRUE(vector.getLogStatements().empty());
    }
    configured->lines.clear();
    ContextLogMessage::log(WARN, L"f", L"Host", L"", 1, L"", 0, L"after");
    EXPECT_EQ(1u, configured->lines.size());  // the vector's registration is gone
}

TEST(ConfiguredStaticLog, EndIsNotLoggedIfTheThresholdRoseMeanwhile) {
    configured->lines.clear();
    {
        LogFunctionCall scope(L"f", L"Host", L"A.cpp", 3, CALL, true);
        StaticLogControl::setCurrentThreshold(INFO);
    }
    StaticLogControl::setCurrentThreshold(TRACE);
    ASSERT_EQ(1u, configured->lines.size());
    EXPECT_NE(std::wstring::npos, configured->lines[0].find(L"A.cpp[3] f: Begin.\n"));
}

TEST(ConfiguredStaticLog, ManyThreadsLogEveryLineWhole) {
    constexpr int Threads = 4;
    constexpr int PerThread = 500;
    VectorLogAppender vector;
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < PerThread; ++i) {
                ContextLogMessage::log(INFO, L"f", L"Host", L"", 1, L"", 0, L"t%d i%d", t, i);
            }
        });
    }
    for (auto& thread : threads) thread.join();
    const auto statements = vector.getLogStatements();
    ASSERT_EQ(static_cast<size_t>(Threads * PerThread), statements.size());
    std::vector<int> next(Threads, 0);
    for (const auto& line : statements) {
        int t = -1;
        int i = -1;
        ASSERT_EQ(2, swscanf(line.c_str() + 24, L"INFO t%d i%d", &t, &i)) << line;
        EXPECT_EQ(next[t]++, i);  // each thread's lines arrive in its order
    }
}
