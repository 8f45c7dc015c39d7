// Bounded stress of the waits: the orders and races that production hits
// once a month, run thousands of times. None of these may hang; each loop is
// bounded in rounds, and a hang is caught by the test's timeout.
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "internal/WaitablePimpl.h"
#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::WaitableInspector;
using vorn_test::Barrier;
using vorn_test::waitUntil;

namespace {
constexpr Concurrency::WaitType ANY = Concurrency::WAIT_ANY;
constexpr Concurrency::WaitType ALL = Concurrency::WAIT_ALL;
}  // namespace

// Two waiters on [A,B] and [B,A] and two signallers firing A and B at once:
// the order of steps must leave no cycle between objects and conditions.
TEST(WaitStress, OppositeOrdersWithTwoSignallersNeverDeadlock) {
    constexpr int Rounds = 3000;
    Event a(false, false);
    Event b(false, false);
    Barrier start(4);
    Barrier done(4);
    std::atomic<int> badResults{0};
    auto waiter = [&](std::vector<Waitable*> objects) {
        for (int round = 0; round < Rounds; ++round) {
            start.arriveAndWait();
            if (Concurrency::waitForMultipleObjects(objects, ANY, -1) < 0) ++badResults;
            done.arriveAndWait();
        }
    };
    auto signaller = [&](Event& event) {
        for (int round = 0; round < Rounds; ++round) {
            start.arriveAndWait();
            event.signal();
            done.arriveAndWait();
            event.reset();
        }
    };
    std::thread w1(waiter, std::vector<Waitable*>{&a, &b});
    std::thread w2(waiter, std::vector<Waitable*>{&b, &a});
    std::thread s1(signaller, std::ref(a));
    std::thread s2(signaller, std::ref(b));
    for (auto* t : {&w1, &w2, &s1, &s2}) t->join();
    EXPECT_EQ(0, badResults.load());
}

// Many threads waiting any or all on overlapping sets, in different orders,
// with timeouts, while others signal and reset. Every auto-reset signal is
// spent at most once: the waits' successes never exceed the signals given.
TEST(WaitStress, OverlappingAnyAndAllWaitsWhileSignallingAndResetting) {
    constexpr int Rounds = 4000;
    Event autoA(true, false);
    Event autoB(true, false);
    Event manual(false, false);
    Semaphore counter(0);
    std::atomic<bool> stop{false};
    std::atomic<long> autoSignals{0};
    std::atomic<long> autoWins{0};
    const std::vector<std::vector<Waitable*>> anySets = {
        {&autoA, &autoB}, {&autoB, &autoA}, {&autoB, &counter, &autoA}};
    std::vector<std::thread> threads;
    for (const auto& set : anySets) {
        threads.emplace_back([&, set] {
            while (!stop.load()) {
                const int index = Concurrency::waitForMultipleObjects(set, ANY, 2);
                if (index >= 0 && (set[index] == &autoA || set[index] == &autoB)) ++autoWins;
            }
        });
    }
    threads.emplace_back([&] {
        while (!stop.load()) {
            Concurrency::waitForMultipleObjects({&manual, &autoA}, ALL, 1);
        }
    });
    threads.emplace_back([&] {
        for (int i = 0; i < Rounds; ++i) {
            // Let the waiters catch up, so that signals meet sleeping waiters too.
            waitUntil([&] { return autoWins.load() * 4 >= autoSignals.load(); });
            autoA.signal();
            autoB.signal();
            autoSignals += 2;
            if (i % 3 == 0) manual.signal();
            if (i % 5 == 0) manual.reset();
            if (i % 7 == 0) counter.increment();
        }
        stop = true;
    });
    for (auto& t : threads) t.join();
    // An ALL wait may also spend autoA's signals, so wins are at most the signals.
    EXPECT_LE(autoWins.load(), autoSignals.load());
    EXPECT_GT(autoWins.load(), 0);
    for (Waitable* w : std::vector<Waitable*>{&autoA, &autoB, &manual, &counter}) {
        EXPECT_EQ(0u, WaitableInspector::subscriberCount(*w));
    }
}

// An auto-reset event releases exactly one waiter per signal, never more.
TEST(WaitStress, AutoResetReleasesOneWaiterPerSignal) {
    constexpr int Waiters = 8;
    constexpr int Rounds = 50;
    for (int round = 0; round < Rounds; ++round) {
        Event event(true, false);
        std::atomic<int> released{0};
        std::vector<std::thread> waiters;
        for (int w = 0; w < Waiters; ++w) {
            waiters.emplace_back([&] {
                if (Concurrency::waitForSingleObject(event, -1) == 0) ++released;
            });
        }
        ASSERT_TRUE(waitUntil([&] { return WaitableInspector::subscriberCount(event) == Waiters; }));
        for (int s = 1; s <= Waiters; ++s) {
            event.signal();
            ASSERT_TRUE(waitUntil([&] { return released.load() == s; }));
            EXPECT_EQ(static_cast<size_t>(Waiters - s), WaitableInspector::subscriberCount(event));
            EXPECT_FALSE(event.isSignaled());
        }
        for (auto& t : waiters) t.join();
        EXPECT_EQ(Waiters, released.load());
    }
}

// Destroying an object while a waiter's short timeout runs out: the waiter
// may be leaving the object's list at that very moment. Under the address
// sanitizer any touch of freed memory fails the run.
TEST(WaitStress, DestroyingDuringAWaitThatIsTimingOut) {
    constexpr int Rounds = 2000;
    Barrier subscribed(2);
    Barrier next(2);
    std::atomic<Event*> doomed{nullptr};
    std::atomic<int> timeouts{0};
    std::atomic<int> destroyed{0};
    std::atomic<int> finishedRounds{0};
    std::thread waiter([&] {
        for (int round = 0; round < Rounds; ++round) {
            subscribed.arriveAndWait();
            try {
                if (Concurrency::waitForSingleObject(*doomed.load(), round % 3) == -1) ++timeouts;
            } catch (const VornWaitObjectDestroyedException&) {
                ++destroyed;
            }
            ++finishedRounds;
            next.arriveAndWait();
        }
    });
    for (int round = 0; round < Rounds; ++round) {
        auto* event = new Event(round % 2 == 0, false);
        doomed = event;
        subscribed.arriveAndWait();
        // Destroy while the waiter is in the list, or once it has left: never
        // before it subscribed, which would be the caller's use after free.
        waitUntil([&] {
            return finishedRounds.load() > round || WaitableInspector::subscriberCount(*event) == 1;
        });
        delete event;
        next.arriveAndWait();
    }
    waiter.join();
    EXPECT_EQ(Rounds, timeouts.load() + destroyed.load());
    EXPECT_GT(destroyed.load(), 0);
}
