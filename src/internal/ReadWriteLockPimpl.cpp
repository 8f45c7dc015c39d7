#include "internal/ReadWriteLockPimpl.h"

#include <cerrno>

#include "internal/PThreadMutexLock.h"
#include "vorn_std/exception/VornAccessException.h"
#include "vorn_std/exception/VornOutOfResourcesException.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std_internal {

using vorn_std::Thread;

namespace {

constexpr uint32_t RecursionLimit = 0xFFFFFFFFu;
constexpr const wchar_t* ReadRecursionLimitText =
    L"readLock failed: Recursion limit for this thread has been reached.";
constexpr const wchar_t* ReadNotOwnedText =
    L"readUnlock failed: The current thread does not own the lock.";
constexpr const wchar_t* WriteRecursionLimitText =
    L"writeLock failed: The recursion limit for this lock has been exceeded.";
constexpr const wchar_t* WriteNotOwnedText =
    L"writeUnlock failed: The current thread does not own the lock.";

}  // namespace

ReadWriteLockPimpl::ReadWriteLockPimpl(int maxReaders)
    : writerThread(Thread::InvalidThreadID), writerRecursion(0), maxReaders(maxReaders) {
    sem_init(&readerPermits, 0, static_cast<unsigned>(maxReaders));
    pthread_mutex_init(&writerEntry, nullptr);
    pthread_mutex_init(&readerGate, nullptr);
    pthread_mutex_init(&tableMutex, nullptr);
}

ReadWriteLockPimpl::~ReadWriteLockPimpl() {
    sem_destroy(&readerPermits);
    pthread_mutex_destroy(&writerEntry);
    pthread_mutex_destroy(&readerGate);
    pthread_mutex_destroy(&tableMutex);
}

bool ReadWriteLockPimpl::callerIsWriter(unsigned long long self) const {
    return writerThread.load(std::memory_order_acquire) == self;
}

void ReadWriteLockPimpl::takePermit() {
    // A signal handler installed without SA_RESTART interrupts the wait.
    while (sem_wait(&readerPermits) != 0 && errno == EINTR) {
    }
}

void ReadWriteLockPimpl::postPermits(int count) {
    for (int i = 0; i < count; ++i) {
        sem_post(&readerPermits);
    }
}

void ReadWriteLockPimpl::readLock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    {
        PThreadMutexLock table(&tableMutex);
        auto entry = readerCounts.find(self);
        if (entry != readerCounts.end()) {
            if (entry->second == RecursionLimit) {
                throw vorn_std::VornOutOfResourcesException(ReadRecursionLimitText);
            }
            ++entry->second;
            return;
        }
    }
    // The writer holds every permit already, so its own read hold takes none.
    if (!callerIsWriter(self)) {
        PThreadMutexLock gate(&readerGate);
        takePermit();
    }
    PThreadMutexLock table(&tableMutex);
    readerCounts[self] = 1;
}

void ReadWriteLockPimpl::readUnlock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    PThreadMutexLock table(&tableMutex);
    auto entry = readerCounts.find(self);
    if (entry == readerCounts.end()) {
        throw vorn_std::VornAccessException(ReadNotOwnedText);
    }
    if (--entry->second == 0) {
        if (!callerIsWriter(self)) {
            sem_post(&readerPermits);
        }
        readerCounts.erase(entry);
    }
}

void ReadWriteLockPimpl::writeLock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    if (!callerIsWriter(self)) {
        // An upgrade gives the read hold up first; another writer may run in between.
        uint32_t heldReads = 0;
        {
            PThreadMutexLock table(&tableMutex);
            auto entry = readerCounts.find(self);
            if (entry != readerCounts.end()) {
                heldReads = entry->second;
                readerCounts.erase(entry);
                sem_post(&readerPermits);
            }
        }
        PThreadMutexLock entryGuard(&writerEntry);
        PThreadMutexLock gate(&readerGate);
        for (int i = 0; i < maxReaders; ++i) {
            takePermit();
        }
        writerThread.store(self, std::memory_order_release);
        if (heldReads > 0) {
            PThreadMutexLock table(&tableMutex);
            readerCounts[self] = heldReads;
        }
    }
    if (writerRecursion == RecursionLimit) {
        throw vorn_std::VornOutOfResourcesException(WriteRecursionLimitText);
    }
    ++writerRecursion;
}

void ReadWriteLockPimpl::writeUnlock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    if (!callerIsWriter(self)) {
        throw vorn_std::VornAccessException(WriteNotOwnedText);
    }
    if (--writerRecursion != 0) {
        return;
    }
    writerThread.store(Thread::InvalidThreadID, std::memory_order_release);
    int permits = maxReaders;
    {
        // A writer that still reads keeps one permit for that hold.
        PThreadMutexLock table(&tableMutex);
        if (readerCounts.count(self) != 0) {
            --permits;
        }
    }
    postPermits(permits);
}

}  // namespace vorn_std_internal
