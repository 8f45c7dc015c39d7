#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <memory>

#include "internal/WaitablePimpl.h"
#include "support/Failures.h"
#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::WaitableInspector;
using vorn_test::waitUntil;
using Clock = std::chrono::steady_clock;

namespace {

constexpr Concurrency::WaitType ANY = Concurrency::WAIT_ANY;
constexpr Concurrency::WaitType ALL = Concurrency::WAIT_ALL;

bool hasWaiters(const Waitable& object, size_t count) {
    return waitUntil([&] { return WaitableInspector::subscriberCount(object) == count; });
}

std::future<int> waitInThread(std::vector<Waitable*> objects, Concurrency::WaitType type,
                              long timeoutMs = -1) {
    return std::async(std::launch::async, [objects, type, timeoutMs] {
        return Concurrency::waitForMultipleObjects(objects, type, timeoutMs);
    });
}

}  // namespace

TEST(WaitSingle, AutoResetEventIsConsumedByOneWait) {
    Event event(true, true);
    EXPECT_EQ(0, Concurrency::waitForSingleObject(event, 0));
    EXPECT_FALSE(event.isSignaled());
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(event, 0));
}

TEST(WaitSingle, ManualResetEventStaysSetUntilReset) {
    Event event(false, true);
    EXPECT_EQ(0, Concurrency::waitForSingleObject(event, 0));
    EXPECT_EQ(0, Concurrency::waitForSingleObject(event, 0));
    event.reset();
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(event, 0));
    EXPECT_EQ(L"Event{autoReset=0,signaled=0}", event.toString());
    event.signal();
    EXPECT_EQ(L"Event{autoReset=0,signaled=1}", event.toString());
}

TEST(WaitSingle, PositiveTimeoutExpiresAfterAtLeastItsLength) {
    Event event(true, false);
    const auto start = Clock::now();
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(event, 50));
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(50));
}

TEST(WaitSingle, TimeoutHasThirtyTwoBitMeaning) {
    Event event(true, false);
    // 2^32 is 0 in 32 bits: a poll, not a wait of seven weeks.
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(event, 0x100000000L));
    // 0xFFFFFFFF is -1: for ever, until the signal.
    auto waiter = std::async(std::launch::async,
                             [&] { return Concurrency::waitForSingleObject(event, 0xFFFFFFFFL); });
    ASSERT_TRUE(hasWaiters(event, 1));
    event.signal();
    EXPECT_EQ(0, waiter.get());
}

TEST(WaitSingle, SignalFromAnotherThreadWakesAnUnlimitedWait) {
    Event event(true, false);
    auto waiter = waitInThread({&event}, ANY);
    ASSERT_TRUE(hasWaiters(event, 1));
    event.signal();
    EXPECT_EQ(0, waiter.get());
    EXPECT_FALSE(event.isSignaled());  // spent on the waiter
}

TEST(WaitEmpty, AllSucceedsAndAnyTimesOut) {
    const std::vector<Waitable*> none;
    EXPECT_EQ(0, Concurrency::waitForMultipleObjects(none, ALL, -1));
    EXPECT_EQ(-1, Concurrency::waitForMultipleObjects(none, ANY, 0));
    const auto start = Clock::now();
    EXPECT_EQ(-1, Concurrency::waitForMultipleObjects(none, ANY, 20));
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(20));
}

TEST(WaitAny, LowestSignalledIndexAndEveryAutoResetSignalSpent) {
    Event first(true, true);
    Event second(true, true);
    EXPECT_EQ(0, Concurrency::waitForMultipleObjects({&first, &second}, ANY, 0));
    EXPECT_FALSE(first.isSignaled());
    EXPECT_FALSE(second.isSignaled());
    Event manual(false, true);
    EXPECT_EQ(1, Concurrency::waitForMultipleObjects({&first, &manual}, ANY, 0));
    EXPECT_EQ(1, Concurrency::waitForMultipleObjects({&first, &manual},
                                                     static_cast<Concurrency::WaitType>(0), 0));
}

TEST(WaitAny, DestroyedObjectRaisesWithItsIndex) {
    Event stays(true, false);
    auto doomed = std::make_unique<Event>(true, false);
    auto waiter = waitInThread({&stays, doomed.get()}, ANY);
    ASSERT_TRUE(hasWaiters(*doomed, 1));
    doomed.reset();
    EXPECT_EQ(L"Object [1] was destroyed!",
              vorn_test::messageOf<VornWaitObjectDestroyedException>([&] { waiter.get(); }));
    EXPECT_EQ(0u, WaitableInspector::subscriberCount(stays));
}

TEST(WaitAny, SignalledLowerIndexHidesADestroyedHigherOne) {
    Event lower(false, false);
    auto doomed = std::make_unique<Event>(false, false);
    auto waiter = waitInThread({&lower, doomed.get()}, ANY);
    ASSERT_TRUE(hasWaiters(*doomed, 1));
    lower.signal();
    doomed.reset();
    EXPECT_EQ(0, waiter.get());
}

TEST(WaitAny, TwoWaitersOnOneAutoResetEventLeaveInArrivalOrder) {
    Event event(true, false);
    auto first = waitInThread({&event}, ANY);
    ASSERT_TRUE(hasWaiters(event, 1));
    auto second = waitInThread({&event}, ANY);
    ASSERT_TRUE(hasWaiters(event, 2));
    event.signal();
    EXPECT_EQ(0, first.get());
    EXPECT_EQ(1u, WaitableInspector::subscriberCount(event));
    event.signal();
    EXPECT_EQ(0, second.get());
}

// A waiter held up on one object's mutex must not hold its own condition, or a
// signaller of an object it already subscribed to would block behind it: the
// link that closes the cycle between two waiters on [A,B] and [B,A].
TEST(WaitAny, WaiterHeldUpWhileSubscribingDoesNotHoldItsCondition) {
    Event blocked(false, false);
    auto heldCondition = std::make_shared<SubscriptionCondition>();
    auto pin = std::make_unique<Subscription>(heldCondition, blocked);
    pin->lock();
    // This signaller takes the object's mutex and stops at the pinned condition.
    auto stuckSignaller = std::async(std::launch::async, [&] { blocked.signal(); });
    ASSERT_TRUE(waitUntil([&] { return blocked.isSignaled(); }));

    Event first(false, false);
    auto waiter = waitInThread({&first, &blocked}, ANY);
    ASSERT_TRUE(hasWaiters(first, 1));
    auto signaller = std::async(std::launch::async, [&] { first.signal(); });
    EXPECT_EQ(std::future_status::ready, signaller.wait_for(vorn_test::Eventually));

    pin->unlock();
    stuckSignaller.get();
    EXPECT_EQ(0, waiter.get());
    pin.reset();
}

TEST(WaitAll, NotAtomicEachSignalIsConsumedAsItArrives) {
    Event first(true, true);
    Event second(true, false);
    EXPECT_EQ(-1, Concurrency::waitForMultipleObjects({&first, &second}, ALL, 0));
    EXPECT_FALSE(first.isSignaled());  // consumed, not put back
}

TEST(WaitAll, SucceedsOnceEveryObjectHasFiredInAnyOrder) {
    Event first(true, false);
    Event second(false, false);
    auto waiter = waitInThread({&first, &second}, ALL);
    ASSERT_TRUE(hasWaiters(second, 1));
    second.signal();
    first.signal();
    EXPECT_EQ(0, waiter.get());
    EXPECT_TRUE(second.isSignaled());
}

TEST(WaitAll, DestroyedObjectIsReportedBeforeATimeout) {
    Event first(true, false);
    auto doomed = std::make_unique<Event>(true, false);
    auto waiter = waitInThread({doomed.get(), &first}, ALL, 60000);
    ASSERT_TRUE(hasWaiters(*doomed, 1));
    doomed.reset();
    EXPECT_EQ(L"Object [0] was destroyed!",
              vorn_test::messageOf<VornWaitObjectDestroyedException>([&] { waiter.get(); }));
}

TEST(WaitObjects, TextsOfTheWaitingClasses) {
    EXPECT_EQ(L"Waitable{}", Waitable(true, false).toString());
    EXPECT_EQ(L"SubscriptionCondition{}", SubscriptionCondition().toString());
    auto condition = std::make_shared<SubscriptionCondition>();
    Event event(true, true);
    const Subscription signalled(condition, event);
    EXPECT_EQ(L"Subscription{state=1}", signalled.toString());
    const Subscription waiting(condition, event);
    EXPECT_EQ(L"Subscription{state=0}", waiting.toString());
}

TEST(SmartEventHandle, PollableEventfdWhoseCounterStartsAtOneWhenSignalled) {
    SmartEvent set(true, true);
    SmartEvent clear(false, false);
    ASSERT_GE(set.getHandle(), 0);
    unsigned long long counter = 0;
    EXPECT_EQ(static_cast<ssize_t>(sizeof counter),
              read(set.getHandle(), &counter, sizeof counter));
    EXPECT_EQ(1u, counter);
    EXPECT_EQ(-1, read(clear.getHandle(), &counter, sizeof counter));  // not signalled
    EXPECT_TRUE(set.isManualReset());
}
