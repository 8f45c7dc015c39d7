#include "vorn_std/thread/SubscriptionCondition.h"

#include "internal/SubscriptionConditionPimpl.h"
#include "vorn_std/thread/TimeSpec.h"

namespace vorn_std {

SubscriptionCondition::SubscriptionCondition()
    : pimpl(std::make_shared<vorn_std_internal::SubscriptionConditionPimpl>()) {}

SubscriptionCondition::~SubscriptionCondition() = default;

std::wstring SubscriptionCondition::toString() const { return L"SubscriptionCondition{}"; }

void SubscriptionCondition::lock() { pimpl->lock(); }
void SubscriptionCondition::unlock() { pimpl->unlock(); }
void SubscriptionCondition::signal() { pimpl->signal(); }

bool SubscriptionCondition::wait(const TimeSpec& deadline) {
    return pimpl->wait(deadline.getSeconds(), deadline.getNanoseconds());
}

}  // namespace vorn_std
