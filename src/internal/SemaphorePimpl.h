#pragma once

#include <semaphore.h>

namespace vorn_std_internal {

// One POSIX semaphore. Each call returns the POSIX result (0 or -1, errno set).
class SemaphorePimpl {
public:
    explicit SemaphorePimpl(unsigned int initialValue) { sem_init(&semaphore, 0, initialValue); }
    ~SemaphorePimpl() { sem_destroy(&semaphore); }
    SemaphorePimpl(const SemaphorePimpl&) = delete;
    SemaphorePimpl& operator=(const SemaphorePimpl&) = delete;

    int post() { return sem_post(&semaphore); }
    int wait();
    int tryWait() { return sem_trywait(&semaphore); }
    int getValue(int* value) { return sem_getvalue(&semaphore, value); }

private:
    sem_t semaphore;
};

}  // namespace vorn_std_internal
