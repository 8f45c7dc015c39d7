#pragma once

#include <pthread.h>

namespace vorn_std_internal {

// Holds a raw POSIX mutex for the length of a scope.
class PThreadMutexLock {
public:
    explicit PThreadMutexLock(pthread_mutex_t* mutex) : mutex(mutex) { pthread_mutex_lock(mutex); }
    ~PThreadMutexLock() { pthread_mutex_unlock(mutex); }
    PThreadMutexLock(const PThreadMutexLock&) = delete;
    PThreadMutexLock& operator=(const PThreadMutexLock&) = delete;

private:
    pthread_mutex_t* mutex;
};

}  // namespace vorn_std_internal
