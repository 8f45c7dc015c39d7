#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

namespace vorn_std_internal {

// The mutex behind a Lock, with the recursion kept in front of it. The owner
// is one atomic word (its numeric thread id), read without a lock: only the
// owner can find its own id there, and nobody can see a torn value.
class LockPimpl {
public:
    LockPimpl();
    ~LockPimpl();
    LockPimpl(const LockPimpl&) = delete;
    LockPimpl& operator=(const LockPimpl&) = delete;

    void lock();
    // True if the outermost hold was released (the lock should signal).
    bool unlock();
    bool tryLock();

private:
    void takeOwnership(unsigned long long self);

    pthread_mutex_t mutex;
    uint32_t lockCount;  // touched by the owner only
    std::atomic<unsigned long long> ownerThreadId;
};

}  // namespace vorn_std_internal
