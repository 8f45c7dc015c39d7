#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <stdexcept>

#include "support/DebugCapture.h"
#include "support/Failures.h"
#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_test::waitUntil;
using Clock = std::chrono::steady_clock;

namespace {

// Runs a function as a Runnable.
class Task : public Runnable {
public:
    explicit Task(std::function<void()> body) : body(std::move(body)) {}
    void run() override { body(); }

private:
    std::function<void()> body;
};

std::shared_ptr<Task> task(std::function<void()> body) {
    return std::make_shared<Task>(std::move(body));
}

// A gate a thread waits behind until the test opens it.
struct Gate {
    Event opened{false, false};
    void open() { opened.signal(); }
    void pass() { Concurrency::waitForSingleObject(opened, -1); }
};

std::wstring threadFailureLine(const std::function<void()>& body, const std::wstring& name) {
    vorn_test::DebugCapture capture;
    Thread thread(task(body), name);
    thread.start();
    EXPECT_TRUE(thread.join(30000));
    EXPECT_EQ(Thread::THREAD_STOPPED, thread.getState());
    for (const std::string& line : capture.lines()) {
        if (line.rfind("WARN : ", 0) == 0) return std::wstring(line.begin(), line.end());
    }
    return L"";
}

}  // namespace

TEST(ThreadLifecycle, JoinSeesUnstartedRunningAndStoppedStates) {
    Gate gate;
    Thread thread(task([&] { gate.pass(); }), L"worker");
    EXPECT_EQ(Thread::THREAD_NOT_STARTED, thread.getState());
    EXPECT_TRUE(thread.join(0));
    EXPECT_EQ(Thread::InvalidThreadID, thread.getId());
    thread.start();
    EXPECT_FALSE(thread.join(0));
    EXPECT_EQ(Thread::THREAD_RUNNING, thread.getState());
    gate.open();
    EXPECT_TRUE(thread.join(-1));
    EXPECT_EQ(Thread::THREAD_STOPPED, thread.getState());
    EXPECT_EQ(Thread::InvalidThreadID, thread.getId());
    EXPECT_EQ(L"Thread{name='worker'}", thread.toString());
}

TEST(ThreadLifecycle, IdIsTheRunningThreadsOwnAndARestartRunsAgain) {
    Gate gate;
    std::atomic<unsigned long long> seen{0};
    std::atomic<int> runs{0};
    Thread thread(task([&] {
                      seen = Thread::getCurrentThreadId();
                      ++runs;
                      gate.pass();
                  }),
                  L"again");
    thread.start();
    ASSERT_EQ(0, thread.waitForStart(30000));
    ASSERT_TRUE(waitUntil([&] { return seen.load() != 0; }));
    EXPECT_EQ(seen.load(), thread.getId());
    EXPECT_EQ(L"The current thread is already running!",
              vorn_test::messageOf<VornIllegalStateException>([&] { thread.start(); }));
    gate.open();
    ASSERT_TRUE(thread.join(30000));
    thread.start();
    ASSERT_TRUE(thread.join(30000));
    EXPECT_EQ(2, runs.load());
}

TEST(ThreadFailures, ExceptionLeavingRunIsLoggedAsStd3008) {
    const std::wstring vorn = threadFailureLine([] { throw VornIOException(L"disk gone"); }, L"io");
    EXPECT_EQ(0u, vorn.find(L"WARN : The thread ["));
    EXPECT_NE(std::wstring::npos, vorn.find(L":io] terminated unexpectedly. Reason: disk gone"));
    const std::wstring standard =
        threadFailureLine([] { throw std::runtime_error("boom"); }, L"std");
    EXPECT_NE(std::wstring::npos,
              standard.find(L":std] terminated unexpectedly. Reason: Caught std::exception of type "
                            L"std::runtime_error"));
    const std::wstring other = threadFailureLine([] { throw 42; }, L"int");
    EXPECT_NE(std::wstring::npos,
              other.find(L":int] terminated unexpectedly. Reason: Caught unknown exception."));
}

TEST(ThreadLifecycle, DestroyedWithoutJoinWhileItsRunnableRuns) {
    Gate gate;
    std::atomic<bool> ran{false};
    std::atomic<bool> finished{false};
    {
        Thread thread(task([&] {
                          ran = true;
                          gate.pass();
                          finished = true;
                      }),
                      L"orphan");
        thread.setJoinOnDestruct(false);
        EXPECT_FALSE(thread.isJoinOnDestruct());
        thread.start();
        ASSERT_TRUE(waitUntil([&] { return ran.load(); }));
    }
    gate.open();
    EXPECT_TRUE(waitUntil([&] { return finished.load(); }));
}

TEST(ThreadLifecycle, DestroyedRightAfterStartStillRunsItsRunnable) {
    std::atomic<bool> finished{false};
    {
        Thread thread(task([&] { finished = true; }), L"quick");
        thread.setJoinOnDestruct(false);
        thread.start();
    }
    EXPECT_TRUE(waitUntil([&] { return finished.load(); }));
}

TEST(ThreadCancellation, UnwindsTheBodyAndReleasesJoiners) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    // glibc unwinds a cancelled thread out of the blocking call without telling
    // the sanitizers: the address sanitizer keeps stale stack poison, the thread
    // sanitizer stops seeing that thread's locks. The plain build runs this test.
    GTEST_SKIP() << "the sanitizers cannot follow pthread_cancel's forced unwinding";
#endif
    std::atomic<bool> unwound{false};
    struct Sentinel {
        std::atomic<bool>* flag;
        ~Sentinel() { *flag = true; }
    };
    Thread thread(task([&] {
                      Sentinel sentinel{&unwound};
                      for (;;) Thread::sleep(1000);  // a cancellation point
                  }),
                  L"cancelled");
    thread.start();
    ASSERT_EQ(0, thread.waitForStart(30000));
    thread.cancel();
    EXPECT_TRUE(thread.join(0));
    EXPECT_EQ(Thread::THREAD_STOPPED, thread.getState());
    EXPECT_TRUE(waitUntil([&] { return unwound.load(); }));
    EXPECT_EQ(L"The current thread is not running!",
              vorn_test::messageOf<VornIllegalStateException>([&] { thread.cancel(); }));
}

TEST(ThreadPriorities, OnlyForARunningThreadAndAllOneOnLinux) {
    Gate gate;
    Thread thread(task([&] { gate.pass(); }), L"prio");
    EXPECT_EQ(L"The current thread is not running.",
              vorn_test::messageOf<VornIllegalStateException>([&] { thread.getPriority(); }));
    thread.start();
    thread.setPriority(Thread::PRIORITY_LOW);
    EXPECT_EQ(Thread::PRIORITY_HIGH, thread.getPriority());  // minimum == maximum == 0
    gate.open();
    thread.join(-1);
}

TEST(ThreadAsWaitable, MixesWithEventsInOneWait) {
    Gate gate;
    Event never(true, false);
    Thread thread(task([&] { gate.pass(); }), L"mixed");
    thread.start();
    auto waiter = std::async(std::launch::async, [&] {
        return Concurrency::waitForMultipleObjects({&never, &thread}, Concurrency::WAIT_ANY, -1);
    });
    EXPECT_EQ(std::future_status::timeout, waiter.wait_for(std::chrono::milliseconds(20)));
    gate.open();
    EXPECT_EQ(1, waiter.get());
}

TEST(ThreadSleep, NegativeReturnsAtOnceAndPositiveSleeps) {
    auto start = Clock::now();
    Thread::sleep(-5);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(1));
    start = Clock::now();
    Thread::sleep(20);
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(20));
}

TEST(ThreadFactories, NamesPoolsAndNullChecks) {
    DefaultThreadFactory named(L"io");
    EXPECT_EQ(L"io-thread-0", named.newThread(task([] {}))->getName());
    EXPECT_EQ(L"io-thread-1", named.newThread(task([] {}))->getName());
    EXPECT_EQ(L"DefaultThreadFactory{namePrefix='io-thread-'}", named.toString());
    const int pool = DefaultThreadFactory::poolNumber.get();
    auto first = Executors::defaultThreadFactory(L"");
    auto second = Executors::defaultThreadFactory(L"");
    EXPECT_EQ(L"pool-" + std::to_wstring(pool) + L"-thread-0",
              first->newThread(task([] {}))->getName());
    EXPECT_EQ(L"pool-" + std::to_wstring(pool + 1) + L"-thread-0",
              second->newThread(task([] {}))->getName());
    EXPECT_EQ(L"Runnable value is NULL.", vorn_test::messageOf<VornIllegalArgumentException>(
                                              [&] { named.newThread(nullptr); }));
    EXPECT_EQ(L"Task value is NULL.", vorn_test::messageOf<VornIllegalArgumentException>(
                                          [&] { Executors::callable(nullptr); }));
    bool ran = false;
    auto callable = Executors::callable(task([&] { ran = true; }));
    EXPECT_EQ(nullptr, (*callable)());
    EXPECT_TRUE(ran);
}

namespace {

class Ticker : public AbstractNotificationThread {
public:
    Ticker() : AbstractNotificationThread(L"ticker") {}
    std::atomic<int> ticks{0};
    std::atomic<int> lastSleep{99};
    long period = -1;

    int sleepOnce(long ms) { return sleepForPeriod(ms); }

    void run() override {
        while (!isShutdown()) {
            ++ticks;
            lastSleep = sleepForPeriod(period);
        }
    }
};

}  // namespace

TEST(NotificationThread, WakeupIsKeptAndTimeoutsReportMinusOne) {
    Ticker ticker;
    ticker.wakeup();  // nobody sleeps yet: the next sleep ends at once
    EXPECT_EQ(0, ticker.sleepOnce(60000));
    EXPECT_EQ(-1, ticker.sleepOnce(10));
    EXPECT_EQ(L"AbstractNotificationThread{Thread{name='ticker'},isShutdownFlag=0}",
              ticker.toString());
}

TEST(NotificationThread, LoopWakesOnRequestStopsOnShutdownAndRestarts) {
    Ticker ticker;
    ticker.start();
    ASSERT_TRUE(waitUntil([&] { return ticker.ticks.load() == 1; }));
    ticker.wakeup();
    ASSERT_TRUE(waitUntil([&] { return ticker.ticks.load() == 2; }));
    EXPECT_EQ(0, ticker.lastSleep.load());
    ticker.shutdown();
    ASSERT_TRUE(ticker.join(30000));
    EXPECT_TRUE(ticker.isShutdown());
    ticker.start();
    EXPECT_FALSE(ticker.isShutdown());
    ASSERT_TRUE(waitUntil([&] { return ticker.ticks.load() == 3; }));
    ticker.shutdown();
    ASSERT_TRUE(ticker.join(30000));
}
