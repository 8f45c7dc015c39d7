#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(SemaphoreCount, NegativeStartCountsAsZero) {
    Semaphore semaphore(-5);
    EXPECT_EQ(0, semaphore.getValue());
    EXPECT_FALSE(semaphore.isSignaled());
    EXPECT_FALSE(semaphore.tryDecrement());
    semaphore.increment();
    EXPECT_EQ(L"Semaphore{value=1}", semaphore.toString());
    EXPECT_TRUE(semaphore.tryDecrement());
    EXPECT_EQ(0, semaphore.getValue());
}

TEST(SemaphoreAsWaitable, AWaitTakesNothingFromTheCount) {
    Semaphore semaphore(3);
    EXPECT_EQ(0, Concurrency::waitForSingleObject(semaphore, 0));
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(semaphore, 0));  // one waiter, not three
    EXPECT_EQ(3, semaphore.getValue());
    semaphore.decrement();
    EXPECT_EQ(2, semaphore.getValue());
    EXPECT_EQ(-1, Concurrency::waitForSingleObject(semaphore, 0));  // decrement left the flag
    semaphore++;
    EXPECT_EQ(0, Concurrency::waitForSingleObject(semaphore, 0));
    semaphore--;
    EXPECT_EQ(2, semaphore.getValue());
}

TEST(SemaphoreStress, NoUnitIsLostOrDoubled) {
    constexpr int Producers = 3;
    constexpr int Consumers = 3;
    constexpr int PerProducer = 3000;
    Semaphore semaphore(0);
    std::atomic<int> consumed{0};
    std::vector<std::thread> threads;
    for (int p = 0; p < Producers; ++p) {
        threads.emplace_back([&] {
            for (int i = 0; i < PerProducer; ++i) semaphore.increment();
        });
    }
    for (int c = 0; c < Consumers; ++c) {
        threads.emplace_back([&] {
            while (consumed.load() < Producers * PerProducer) {
                if (Concurrency::waitForSingleObject(semaphore, 5) == 0 || semaphore.getValue() > 0) {
                    while (semaphore.tryDecrement()) ++consumed;
                }
            }
        });
    }
    for (auto& t : threads) t.join();
    EXPECT_EQ(Producers * PerProducer, consumed.load());
    EXPECT_EQ(0, semaphore.getValue());
}
