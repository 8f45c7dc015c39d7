#include <gtest/gtest.h>

#include "support/Failures.h"
#include "support/LogDoubles.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_test::CapturingAppender;

namespace {

std::wstring messageOf(const std::wstring& line) { return line.substr(line.rfind(L' ') + 1); }

}  // namespace

TEST(LoggerBaseAppenders, AddedOnceRemovedAllAndNullRefused) {
    LoggerBase logger;
    auto appender = std::make_shared<CapturingAppender>();
    logger.addAppender(appender);
    logger.addAppender(appender);
    logger.log(INFO, L"f", L"once", L"Host", L"", 1, L"", 0);
    EXPECT_EQ(1u, appender->lines.size());
    EXPECT_TRUE(logger.containsAppender(appender));
    logger.removeAppender(appender);
    EXPECT_FALSE(logger.containsAppender(appender));
    EXPECT_EQ(
        L"Appender to add must not be NULL.",
        vorn_test::messageOf<VornIllegalArgumentException>([&] { logger.addAppender(nullptr); }));
}

TEST(LoggerBaseAppenders, ThrowingAppenderGetsOneEventAndIsDroppedTheNextGetsAll) {
    LoggerBase logger;
    auto failing = std::make_shared<CapturingAppender>();
    failing->onLine = [](const std::wstring&) { throw VornIOException(L"disk gone"); };
    auto healthy = std::make_shared<CapturingAppender>();
    logger.addAppender(failing);
    logger.addAppender(healthy);
    logger.log(INFO, L"f", L"first", L"Host", L"", 1, L"", 0);
    logger.log(INFO, L"f", L"second", L"Host", L"", 1, L"", 0);
    EXPECT_EQ(1u, failing->lines.size());
    EXPECT_FALSE(logger.containsAppender(failing));
    ASSERT_EQ(2u, healthy->lines.size());
    EXPECT_EQ(L"second\n", messageOf(healthy->lines[1]));
}

// The appender logs again through the same logger and fails on that inner
// statement: it is dropped while the outer walk is still on it.
TEST(LoggerBaseAppenders, AppenderDroppedWhileTheSameThreadLogsThroughItAgain) {
    LoggerBase logger;
    auto reentrant = std::make_shared<CapturingAppender>();
    auto healthy = std::make_shared<CapturingAppender>();
    reentrant->onLine = [&](const std::wstring& line) {
        if (messageOf(line) == L"outer\n") {
            logger.log(INFO, L"f", L"inner", L"Host", L"", 1, L"", 0);
        } else {
            throw std::runtime_error("fails on the inner statement");
        }
    };
    logger.addAppender(reentrant);
    logger.addAppender(healthy);
    logger.log(INFO, L"f", L"outer", L"Host", L"", 1, L"", 0);
    EXPECT_FALSE(logger.containsAppender(reentrant));
    ASSERT_EQ(2u, healthy->lines.size());
    EXPECT_EQ(L"inner\n", messageOf(healthy->lines[0]));
    EXPECT_EQ(L"outer\n", messageOf(healthy->lines[1]));
}

TEST(LoggerBaseAppenders, WithoutFilterNothingAndWithoutLayoutTheEvent) {
    LoggerBase logger;
    auto unfiltered = std::make_shared<CapturingAppender>();
    unfiltered->setFilter(nullptr);
    auto bare = std::make_shared<CapturingAppender>(nullptr);
    auto logOnly = std::make_shared<CapturingAppender>();
    logOnly->setFilter(std::make_shared<LogFileFilter>());
    for (const auto& a : {unfiltered, bare, logOnly}) logger.addAppender(a);
    logger.log(DEBUG, L"f", L"debug line", L"Host", L"", 1, L"F.cpp", 3);
    logger.log(ERROR, L"f", L"error line", L"Host", L"", 1, L"F.cpp", 4);
    EXPECT_TRUE(unfiltered->lines.empty());
    EXPECT_EQ((std::vector<std::wstring>{L"debug line", L"error line"}), bare->messages);
    ASSERT_EQ(1u, logOnly->lines.size());
    EXPECT_NE(std::wstring::npos, logOnly->lines[0].find(L" ERROR F.cpp[4] error line\n"));
}
