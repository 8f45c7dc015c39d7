#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std_internal {
class WaitablePimpl;
}

namespace vorn_std {

class SubscriptionCondition;
class TimeSpec;
class Waitable;

// Ties one wait to one Waitable for the length of that wait. The state moves
// once, from SUBSCRIPTION_WAITING to SIGNALED or DESTROYED, set by a
// signaller with the condition locked or by the subscribing thread itself.
//
// The subscription shares ownership of the object's state, so a waiter that
// leaves after the object was destroyed never touches freed memory.
class VORNSTD_API Subscription : public Object {
public:
    enum SubscriptionState {
        SUBSCRIPTION_WAITING = 0,
        SUBSCRIPTION_SIGNALED = 1,
        SUBSCRIPTION_DESTROYED = 2
    };

    Subscription(std::shared_ptr<SubscriptionCondition>& condition, Waitable& waitable);
    ~Subscription() override;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    std::wstring toString() const override;
    SubscriptionState getState() const;
    void setState(SubscriptionState state);
    void lock();
    void unlock();
    void signal();
    bool wait(const TimeSpec& deadline);
    const std::shared_ptr<SubscriptionCondition>& getCondition() const { return condition; }

private:
    std::shared_ptr<SubscriptionCondition> condition;
    SubscriptionState state;  // guarded by the condition's mutex once subscribed
    Waitable* waitable;
    std::shared_ptr<vorn_std_internal::WaitablePimpl> waitableState;
};

}  // namespace vorn_std
