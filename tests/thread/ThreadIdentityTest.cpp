#include <gtest/gtest.h>

#include <future>
#include <set>
#include <thread>

#include "internal/ThreadIdentity.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_std_internal::ThreadIdMap;

TEST(ThreadIdentity, StablePerThreadAndDistinctBetweenThreads) {
    const unsigned long long mine = Thread::getCurrentThreadId();
    EXPECT_EQ(mine, Thread::getCurrentThreadId());
    EXPECT_NE(Thread::InvalidThreadID, mine);
    EXPECT_EQ(4294967295ULL, Thread::InvalidThreadID);
    std::set<unsigned long long> ids{mine};
    for (int i = 0; i < 4; ++i) {
        ids.insert(std::async(std::launch::async, [] { return Thread::getCurrentThreadId(); }).get());
    }
    EXPECT_EQ(5u, ids.size());
}

TEST(ThreadIdMapLookup, KnowsLiveThreadsAndForgetsEndedOnes) {
    ThreadIdMap& map = ThreadIdMap::getInstance();
    EXPECT_EQ(Thread::InvalidThreadID, map.getThreadId(0));
    EXPECT_EQ(Thread::getCurrentThreadId(), map.getThreadId(pthread_self()));

    std::promise<unsigned long long> started;
    std::promise<void> finish;
    std::thread worker([&] {
        started.set_value(Thread::getCurrentThreadId());
        finish.get_future().wait();
    });
    const unsigned long long workerId = started.get_future().get();
    const pthread_t handle = worker.native_handle();
    EXPECT_EQ(workerId, map.getThreadId(handle));
    clearThreadIdMap();
    EXPECT_EQ(Thread::InvalidThreadID, map.getThreadId(handle));
    finish.set_value();
    worker.join();
}

TEST(ThreadIdMapLookup, EndedThreadLeavesNoEntryForItsReusedHandle) {
    ThreadIdMap& map = ThreadIdMap::getInstance();
    pthread_t handle{};
    std::thread worker([] { Thread::getCurrentThreadId(); });
    handle = worker.native_handle();
    worker.join();
    EXPECT_EQ(Thread::InvalidThreadID, map.getThreadId(handle));
}
