#include <gtest/gtest.h>

#include <climits>
#include <future>

#include "internal/WaitablePimpl.h"
#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::WaitableInspector;

namespace {

bool tryLockElsewhere(Lock& lock) {
    return std::async(std::launch::async, [&] {
               const bool taken = lock.tryLock();
               if (taken) lock.unlock();
               return taken;
           }).get();
}

}  // namespace

TEST(LockOwnership, UnlockByANonOwnerRaisesAndKeepsTheOwnersHold) {
    Lock lock;
    lock.lock();
    auto stranger = std::async(std::launch::async, [&]() -> std::wstring {
        try {
            lock.unlock();
            return L"no exception";
        } catch (const VornAccessException& e) {
            return e.getMessage();
        }
    });
    EXPECT_EQ(L"The current thread does not own the lock.", stranger.get());
    EXPECT_FALSE(tryLockElsewhere(lock));
    lock.unlock();
    EXPECT_TRUE(tryLockElsewhere(lock));
    EXPECT_THROW(lock.unlock(), VornAccessException);
}

TEST(LockOwnership, TryLockNestsForTheOwnerAndNeverBlocksOthers) {
    Lock lock;
    EXPECT_TRUE(lock.tryLock());
    EXPECT_TRUE(lock.tryLock());
    EXPECT_FALSE(tryLockElsewhere(lock));
    lock.unlock();
    EXPECT_FALSE(tryLockElsewhere(lock));
    lock.unlock();
    EXPECT_TRUE(tryLockElsewhere(lock));
}

TEST(LockAsWaitable, OnlyTheOutermostUnlockSignals) {
    Lock lock;
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(lock, 0));  // starts unsignalled
    lock.lock();
    lock.lock();
    lock.unlock();
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(lock, 0));
    lock.unlock();
    EXPECT_EQ(0, Concurrency::waitForSingleObject(lock, 0));
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(lock, 0));  // auto-reset
}

TEST(LockAsWaitable, WaitingEndsAtAnUnlockWithoutAcquiring) {
    Lock lock;
    lock.lock();
    auto waiter = std::async(std::launch::async, [&] {
        const int result = Concurrency::waitForSingleObject(lock, -1);
        const bool acquired = !lock.tryLock();  // false would mean the wait took it
        if (!acquired) lock.unlock();
        return std::make_pair(result, acquired);
    });
    ASSERT_TRUE(vorn_test::waitUntil([&] { return WaitableInspector::subscriberCount(lock) == 1; }));
    lock.unlock();
    const auto [result, heldByWaiter] = waiter.get();
    EXPECT_EQ(0, result);
    EXPECT_FALSE(heldByWaiter);
    EXPECT_EQ(L"Lock{}", lock.toString());
}

TEST(LockExclusion, ManyThreadsIncrementUnderTheLock) {
    Lock lock;
    long counter = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 20000; ++i) {
                AutoLock<Lock> outer(&lock);
                AutoLock<Lock> inner(&lock);
                ++counter;
            }
        });
    }
    for (auto& t : threads) t.join();
    EXPECT_EQ(80000, counter);
}

TEST(AtomicCounters, OperationsAndWrapping) {
    AtomicInteger integer(5);
    EXPECT_FALSE(integer.compareAndSet(4, 9));
    EXPECT_EQ(5, integer.get());
    EXPECT_TRUE(integer.compareAndSet(5, 9));
    EXPECT_EQ(9, integer.getAndIncrement());
    EXPECT_EQ(11, integer.incrementAndGet());
    EXPECT_EQ(11, integer.getAndDecrement());
    EXPECT_EQ(9, integer.decrementAndGet());
    EXPECT_EQ(9, integer.getAndAdd(-10));
    EXPECT_EQ(-1, integer.getAndSet(INT_MAX));
    EXPECT_EQ(INT_MIN, integer.incrementAndGet());
    EXPECT_EQ(L"AtomicInteger{value=-2147483648}", integer.toString());

    AtomicLong counter;
    EXPECT_EQ(0xFFFFFFFFFFFFFFFFULL, counter.decrementAndGet());
    EXPECT_EQ(1u, counter.addAndGet(2));
    EXPECT_EQ(L"AtomicLong{value=1}", counter.toString());
}

TEST(AtomicCounters, NoIncrementIsLostAcrossThreads) {
    AtomicLong counter;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 10000; ++i) counter.incrementAndGet();
        });
    }
    for (auto& t : threads) t.join();
    EXPECT_EQ(40000u, counter.get());
}
