#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std_internal {
class SubscriptionConditionPimpl;
}

namespace vorn_std {

class TimeSpec;

// Where one wait sleeps: a mutex and a condition variable. Deadlines are
// read on the monotonic clock, so a change of the wall clock never moves them.
class VORNSTD_API SubscriptionCondition : public Object {
public:
    SubscriptionCondition();
    ~SubscriptionCondition() override;
    SubscriptionCondition(const SubscriptionCondition&) = delete;
    SubscriptionCondition& operator=(const SubscriptionCondition&) = delete;

    std::wstring toString() const override;
    void lock();
    void unlock();
    // Wakes one sleeper.
    void signal();
    // With the mutex held: sleeps until signalled or until the (monotonic)
    // deadline; negative seconds sleep without limit. True if signalled,
    // false on timeout.
    bool wait(const TimeSpec& deadline);

private:
    std::shared_ptr<vorn_std_internal::SubscriptionConditionPimpl> pimpl;
};

}  // namespace vorn_std
