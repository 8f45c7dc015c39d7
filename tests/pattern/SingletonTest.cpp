#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

std::atomic<int> constructions{0};

class Counted : public Singleton<Counted> {
public:
    int serial;

private:
    friend class Singleton<Counted>;
    Counted() : serial(++constructions) {}
    static std::wstring getSingletonName() { return L"test::Counted"; }
};

class Racer : public Singleton<Racer> {
public:
    int value = 42;

private:
    friend class Singleton<Racer>;
    Racer() = default;
    static std::wstring getSingletonName() { return L"test::Racer"; }
};

}  // namespace

TEST(SingletonInstance, MadeOnFirstUseThenTheSameObject) {
    const int before = constructions.load();
    Counted& first = Counted::getInstance();
    EXPECT_EQ(before + 1, constructions.load());
    EXPECT_EQ(&first, &Counted::getInstance());
    EXPECT_EQ(before + 1, constructions.load());
}

// Without a second test under the lock, threads that race at first use may
// each make an instance; every reference handed out must stay usable, and
// all callers agree on one instance afterwards.
TEST(SingletonInstance, FirstUseFromManyThreadsHandsOutOnlyLiveInstances) {
    constexpr int Threads = 8;
    vorn_test::Barrier start(Threads);
    std::atomic<int> sum{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t) {
        threads.emplace_back([&] {
            start.arriveAndWait();
            Racer& racer = Racer::getInstance();
            sum += racer.value;  // a freed instance would fail under the sanitizers
        });
    }
    for (auto& t : threads) t.join();
    EXPECT_EQ(Threads * 42, sum.load());
    Racer* settled = &Racer::getInstance();
    EXPECT_EQ(settled, &Racer::getInstance());
}
