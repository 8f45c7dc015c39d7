#include "vorn_std/thread/Subscription.h"

#include "internal/WaitablePimpl.h"
#include "vorn_std/thread/SubscriptionCondition.h"
#include "vorn_std/thread/Waitable.h"

namespace vorn_std {

Subscription::Subscription(std::shared_ptr<SubscriptionCondition>& condition, Waitable& waitable)
    : condition(condition),
      state(SUBSCRIPTION_WAITING),
      waitable(&waitable),
      waitableState(waitable.pimpl) {
    waitable.subscribe(*this);
}

// Through the shared state, never through the object: it may be gone. Under
// the object's mutex no signaller is half-way through this subscription.
Subscription::~Subscription() { waitableState->unsubscribe(*this); }

std::wstring Subscription::toString() const {
    return L"Subscription{state=" + std::to_wstring(static_cast<int>(state)) + L"}";
}

Subscription::SubscriptionState Subscription::getState() const { return state; }
void Subscription::setState(SubscriptionState value) { state = value; }
void Subscription::lock() { condition->lock(); }
void Subscription::unlock() { condition->unlock(); }
void Subscription::signal() { condition->signal(); }
bool Subscription::wait(const TimeSpec& deadline) { return condition->wait(deadline); }

}  // namespace vorn_std
