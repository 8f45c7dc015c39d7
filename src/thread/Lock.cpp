#include "vorn_std/thread/Lock.h"

#include <cerrno>
#include <cstdio>

#include "internal/LockPimpl.h"
#include "vorn_std/exception/VornAccessException.h"
#include "vorn_std/exception/VornDeadlockException.h"
#include "vorn_std/exception/VornIllegalStateException.h"
#include "vorn_std/exception/VornOutOfResourcesException.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std_internal {

using vorn_std::Thread;

namespace {

constexpr uint32_t RecursionLimit = 0xFFFFFFFFu;
constexpr const wchar_t* NotOwnerText = L"The current thread does not own the lock.";
constexpr const wchar_t* RecursionLimitText = L"The recursion limit for this lock has been exceeded.";
constexpr const wchar_t* InvalidStateText =
    L"Lock was in an invalid state, check that the mutex has been initialized correctly.";
constexpr const wchar_t* DeadlockText = L"Locking this mutex would cause a deadlock.";

// Every mutex result passes here; the error id is the platform's own number.
void checkMutexResult(int result) {
    switch (result) {
        case 0:
        case EBUSY: return;
        case EPERM: throw vorn_std::VornAccessException(NotOwnerText, EPERM);
        case EAGAIN: throw vorn_std::VornOutOfResourcesException(RecursionLimitText, EAGAIN);
        case EINVAL: throw vorn_std::VornIllegalStateException(InvalidStateText, EINVAL);
        case EDEADLK: throw vorn_std::VornDeadlockException(DeadlockText, EDEADLK);
        default: std::printf("Other error: %d\n", result);
    }
}

}  // namespace

LockPimpl::LockPimpl() : lockCount(0), ownerThreadId(Thread::InvalidThreadID) {
    pthread_mutex_init(&mutex, nullptr);
}

LockPimpl::~LockPimpl() { pthread_mutex_destroy(&mutex); }

void LockPimpl::takeOwnership(unsigned long long self) {
    ownerThreadId.store(self, std::memory_order_relaxed);
}

void LockPimpl::lock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    if (ownerThreadId.load(std::memory_order_relaxed) != self) {
        checkMutexResult(pthread_mutex_lock(&mutex));
        takeOwnership(self);
    }
    if (lockCount == RecursionLimit) {
        throw vorn_std::VornOutOfResourcesException(RecursionLimitText);
    }
    ++lockCount;
}

bool LockPimpl::unlock() {
    if (ownerThreadId.load(std::memory_order_relaxed) != Thread::getCurrentThreadId()) {
        throw vorn_std::VornAccessException(NotOwnerText);
    }
    if (--lockCount != 0) {
        return false;
    }
    ownerThreadId.store(Thread::InvalidThreadID, std::memory_order_relaxed);
    checkMutexResult(pthread_mutex_unlock(&mutex));
    return true;
}

bool LockPimpl::tryLock() {
    const unsigned long long self = Thread::getCurrentThreadId();
    const unsigned long long owner = ownerThreadId.load(std::memory_order_relaxed);
    if (owner == self) {
        ++lockCount;  // unchecked on purpose: tryLock never refuses its owner
        return true;
    }
    if (owner != Thread::InvalidThreadID) {
        return false;
    }
    const int result = pthread_mutex_trylock(&mutex);
    checkMutexResult(result);
    if (result != 0) {
        return false;
    }
    takeOwnership(self);
    ++lockCount;
    return true;
}

}  // namespace vorn_std_internal

namespace vorn_std {

Lock::Lock() : Waitable(true, false), pimpl(std::make_shared<vorn_std_internal::LockPimpl>()) {}

// The mutex goes first, then the Waitable part wakes any waiter with the
// destroyed state.
Lock::~Lock() { pimpl.reset(); }

std::wstring Lock::toString() const { return L"Lock{}"; }

void Lock::lock() { pimpl->lock(); }

void Lock::unlock() {
    if (pimpl->unlock()) {
        signal();  // after the mutex is free, and only on the outermost unlock
    }
}

bool Lock::tryLock() { return pimpl->tryLock(); }

}  // namespace vorn_std
