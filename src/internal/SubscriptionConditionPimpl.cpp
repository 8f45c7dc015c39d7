#include "internal/SubscriptionConditionPimpl.h"

#include <ctime>

namespace vorn_std_internal {

SubscriptionConditionPimpl::SubscriptionConditionPimpl() {
    pthread_mutex_init(&mutex, nullptr);
    pthread_condattr_t attributes;
    pthread_condattr_init(&attributes);
    pthread_condattr_setclock(&attributes, CLOCK_MONOTONIC);
    pthread_cond_init(&condition, &attributes);
    pthread_condattr_destroy(&attributes);
}

SubscriptionConditionPimpl::~SubscriptionConditionPimpl() {
    pthread_cond_destroy(&condition);
    pthread_mutex_destroy(&mutex);
}

bool SubscriptionConditionPimpl::wait(long long deadlineSeconds, long deadlineNanoseconds) {
    if (deadlineSeconds < 0) {
        return pthread_cond_wait(&condition, &mutex) == 0;
    }
    struct timespec deadline {};
    deadline.tv_sec = static_cast<time_t>(deadlineSeconds);
    deadline.tv_nsec = deadlineNanoseconds;
    return pthread_cond_timedwait(&condition, &mutex, &deadline) == 0;
}

}  // namespace vorn_std_internal
