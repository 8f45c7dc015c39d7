#pragma once

#include <pthread.h>

namespace vorn_std_internal {

// A mutex and a condition variable whose timed waits run on CLOCK_MONOTONIC.
class SubscriptionConditionPimpl {
public:
    SubscriptionConditionPimpl();
    ~SubscriptionConditionPimpl();
    SubscriptionConditionPimpl(const SubscriptionConditionPimpl&) = delete;
    SubscriptionConditionPimpl& operator=(const SubscriptionConditionPimpl&) = delete;

    void lock() { pthread_mutex_lock(&mutex); }
    void unlock() { pthread_mutex_unlock(&mutex); }
    void signal() { pthread_cond_signal(&condition); }
    // True if woken, false once the monotonic deadline has passed.
    bool wait(long long deadlineSeconds, long deadlineNanoseconds);

private:
    pthread_mutex_t mutex;
    pthread_cond_t condition;
};

}  // namespace vorn_std_internal
