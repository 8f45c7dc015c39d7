#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::chrono_literals;

namespace {

// How long a thread that should stay blocked is given to prove otherwise.
constexpr auto BlockedFor = 100ms;
// A bound, not a timing: only a hang reaches it.
constexpr auto Eventually = 30s;

std::future<void> readInOtherThread(ReadWriteLock& lock, std::atomic<bool>& release) {
    return std::async(std::launch::async, [&lock, &release] {
        lock.readLock();
        while (!release.load()) {
            std::this_thread::yield();
        }
        lock.readUnlock();
    });
}

}  // namespace

TEST(ReadWriteLockArguments, FewerThanOneReaderIsRefused) {
    EXPECT_EQ(L"Maximum number of simultaneous readers must not be less than one.",
              vorn_test::messageOf<VornIllegalArgumentException>([&] { ReadWriteLock lock(0); }));
    EXPECT_EQ(32, ReadWriteLock::DefaultReaderCount);
    EXPECT_EQ(L"ReadWriteLock{maxReaders='32'}", ReadWriteLock().toString());
}

TEST(ReadWriteLockOwnership, UnlockWithoutHoldRaisesAccessEvenWhileOthersRead) {
    ReadWriteLock lock(4);
    std::atomic<bool> release{false};
    std::promise<void> holding;
    auto reader = std::async(std::launch::async, [&] {
        ReadWriteLock::ReaderLock guard(&lock);
        holding.set_value();
        while (!release.load()) {
            std::this_thread::yield();
        }
    });
    holding.get_future().wait();
    EXPECT_EQ(L"readUnlock failed: The current thread does not own the lock.",
              vorn_test::messageOf<VornAccessException>([&] { lock.readUnlock(); }));
    EXPECT_EQ(L"writeUnlock failed: The current thread does not own the lock.",
              vorn_test::messageOf<VornAccessException>([&] { lock.writeUnlock(); }));
    release = true;
    reader.get();
}

TEST(ReadWriteLockReaders, OneMoreThanMaxReadersWaitsForALeaver) {
    constexpr int MaxReaders = 3;
    ReadWriteLock lock(MaxReaders);
    std::atomic<bool> release{false};
    std::vector<std::future<void>> readers;
    std::atomic<int> inside{0};
    for (int i = 0; i < MaxReaders; ++i) {
        readers.push_back(std::async(std::launch::async, [&] {
            lock.readLock();
            ++inside;
            while (!release.load()) {
                std::this_thread::yield();
            }
            lock.readUnlock();
        }));
    }
    while (inside.load() < MaxReaders) {
        std::this_thread::yield();
    }
    std::atomic<bool> extraIn{false};
    auto extra = std::async(std::launch::async, [&] {
        lock.readLock();
        extraIn = true;
        lock.readUnlock();
    });
    EXPECT_EQ(std::future_status::timeout, extra.wait_for(BlockedFor));
    EXPECT_FALSE(extraIn.load());
    release = true;
    ASSERT_EQ(std::future_status::ready, extra.wait_for(Eventually));
    EXPECT_TRUE(extraIn.load());
    for (auto& r : readers) r.get();
}

TEST(ReadWriteLockReaders, OneReaderLockStillNestsReadsOfOneThread) {
    ReadWriteLock lock(1);
    lock.readLock();
    lock.readLock();
    lock.readUnlock();
    std::atomic<bool> release{true};
    auto other = readInOtherThread(lock, release);
    EXPECT_EQ(std::future_status::timeout, other.wait_for(BlockedFor));
    lock.readUnlock();
    EXPECT_EQ(std::future_status::ready, other.wait_for(Eventually));
}

TEST(ReadWriteLockWriter, RecursiveWriteHoldsUntilTheLastUnlock) {
    ReadWriteLock lock(2);
    lock.writeLock();
    lock.writeLock();
    lock.writeUnlock();
    std::atomic<bool> release{true};
    auto reader = readInOtherThread(lock, release);
    EXPECT_EQ(std::future_status::timeout, reader.wait_for(BlockedFor));
    lock.writeUnlock();
    EXPECT_EQ(std::future_status::ready, reader.wait_for(Eventually));
}

TEST(ReadWriteLockWriter, WriterReadsWithoutAPermitAndDowngradesToAReader) {
    ReadWriteLock lock(1);
    lock.writeLock();
    lock.readLock();  // would deadlock if it waited for a permit
    lock.writeUnlock();
    // Still a reader holding the only permit.
    std::atomic<bool> release{true};
    auto other = readInOtherThread(lock, release);
    EXPECT_EQ(std::future_status::timeout, other.wait_for(BlockedFor));
    lock.readUnlock();
    EXPECT_EQ(std::future_status::ready, other.wait_for(Eventually));
    lock.writeLock();  // every permit came back
    lock.writeUnlock();
}

TEST(ReadWriteLockWriter, UpgradeKeepsTheReadCount) {
    ReadWriteLock lock(2);
    lock.readLock();
    lock.readLock();
    lock.writeLock();
    lock.writeUnlock();
    lock.readUnlock();
    lock.readUnlock();
    EXPECT_THROW(lock.readUnlock(), VornAccessException);
    lock.writeLock();
    lock.writeUnlock();
}

TEST(ReadWriteLockStress, WritersExcludeEveryoneAndReadersStayBounded) {
    constexpr int MaxReaders = 3;
    constexpr int Writers = 3;
    constexpr int Readers = 6;
    constexpr int Rounds = 2000;
    ReadWriteLock lock(MaxReaders);
    std::atomic<int> activeReaders{0};
    std::atomic<int> activeWriters{0};
    std::atomic<int> violations{0};
    long counter = 0;  // guarded by the write hold
    std::vector<std::thread> threads;
    for (int w = 0; w < Writers; ++w) {
        threads.emplace_back([&] {
            for (int i = 0; i < Rounds; ++i) {
                ReadWriteLock::WriterLock guard(&lock);
                if (activeWriters.fetch_add(1) != 0 || activeReaders.load() != 0) ++violations;
                if (i % 7 == 0) {
                    ReadWriteLock::WriterLock nested(&lock);
                    ReadWriteLock::ReaderLock ownRead(&lock);
                    ++counter;
                } else {
                    ++counter;
                }
                activeWriters.fetch_sub(1);
            }
        });
    }
    for (int r = 0; r < Readers; ++r) {
        threads.emplace_back([&] {
            for (int i = 0; i < Rounds; ++i) {
                ReadWriteLock::ReaderLock guard(&lock);
                const int now = activeReaders.fetch_add(1) + 1;
                if (now > MaxReaders || activeWriters.load() != 0) ++violations;
                if (i % 5 == 0) {
                    ReadWriteLock::ReaderLock nested(&lock);
                }
                activeReaders.fetch_sub(1);
            }
        });
    }
    for (auto& t : threads) t.join();
    EXPECT_EQ(0, violations.load());
    EXPECT_EQ(static_cast<long>(Writers) * Rounds, counter);
}
