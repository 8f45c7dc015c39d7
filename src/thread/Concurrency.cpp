#include "vorn_std/thread/Concurrency.h"

#include "internal/Deadline.h"
#include "vorn_std/exception/VornWaitObjectDestroyedException.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Subscription.h"
#include "vorn_std/thread/SubscriptionCondition.h"
#include "vorn_std/thread/TimeSpec.h"
#include "vorn_std/thread/Waitable.h"

namespace vorn_std {

namespace {

[[noreturn]] void throwDestroyed(size_t index) {
    throw VornWaitObjectDestroyedException(L"Object [" + std::to_wstring(index) +
                                           L"] was destroyed!");
}

// A thread reuses one condition for its waits. A signaller that marked a
// subscription still holds the condition for a moment after the wait ended;
// then a fresh one is made, and a late wake-up of the old one is harmless
// (a wait loops until a state changed).
std::shared_ptr<SubscriptionCondition> conditionForThisThread() {
    thread_local std::shared_ptr<SubscriptionCondition> cached;
    if (!cached || cached.use_count() != 1) {
        cached = std::make_shared<SubscriptionCondition>();
    }
    return cached;
}

}  // namespace

int Concurrency::waitForSingleObject(Waitable& object, long timeoutMs) {
    return waitForAny(std::vector<Waitable*>{&object}, timeoutMs);
}

int Concurrency::waitForMultipleObjects(const std::vector<Waitable*>& objects, WaitType type,
                                        long timeoutMs) {
    return type == WAIT_ANY ? waitForAny(objects, timeoutMs) : waitForAll(objects, timeoutMs);
}

TimeSpec Concurrency::getWaitTime(long timeoutMs) {
    return vorn_std_internal::deadlineAfter(timeoutMs);
}

int Concurrency::getWaitResult(const Subscriptions& subscriptions) {
    for (size_t index = 0; index < subscriptions.size(); ++index) {
        switch (subscriptions[index]->getState()) {
            case Subscription::SUBSCRIPTION_SIGNALED: return static_cast<int>(index);
            case Subscription::SUBSCRIPTION_DESTROYED: throwDestroyed(index);
            default: break;
        }
    }
    return -1;
}

// Subscribes to every object before taking the shared condition: a waiter
// never holds its condition while it takes an object's mutex, so two waiters
// on [A,B] and [B,A] cannot deadlock with two signallers. A signal that lands
// between subscribing and sleeping has set its state under the condition and
// is seen before the first sleep.
int Concurrency::waitForAny(const std::vector<Waitable*>& objects, long timeoutMs) {
    auto condition = conditionForThisThread();
    Subscriptions subscriptions;
    subscriptions.reserve(objects.size());
    for (Waitable* object : objects) {
        subscriptions.push_back(std::make_unique<Subscription>(condition, *object));
    }
    // The condition is released before the subscriptions leave their objects.
    AutoLock<SubscriptionCondition> held(condition.get());
    int result = getWaitResult(subscriptions);
    if (result != -1 || static_cast<int32_t>(timeoutMs) == 0) {
        return result;
    }
    const TimeSpec deadline = getWaitTime(timeoutMs);
    while (result == -1) {
        if (!condition->wait(deadline) && vorn_std_internal::deadlinePassed(deadline)) {
            return -1;  // a timed-out wait does not look at the states again
        }
        result = getWaitResult(subscriptions);
    }
    return result;
}

int Concurrency::waitForAll(const std::vector<Waitable*>& objects, long timeoutMs) {
    const TimeSpec deadline = getWaitTime(timeoutMs);
    std::vector<std::shared_ptr<SubscriptionCondition>> conditions;
    Subscriptions subscriptions;
    conditions.reserve(objects.size());
    subscriptions.reserve(objects.size());
    for (Waitable* object : objects) {
        conditions.push_back(std::make_shared<SubscriptionCondition>());
        subscriptions.push_back(std::make_unique<Subscription>(conditions.back(), *object));
    }
    int result = 0;
    for (size_t index = 0; index < subscriptions.size() && result == 0; ++index) {
        Subscription& subscription = *subscriptions[index];
        AutoLock<Subscription> held(&subscription);
        while (subscription.getState() == Subscription::SUBSCRIPTION_WAITING) {
            if (!subscription.wait(deadline) && vorn_std_internal::deadlinePassed(deadline)) {
                result = -1;
                break;
            }
        }
        if (subscription.getState() == Subscription::SUBSCRIPTION_DESTROYED) {
            throwDestroyed(index);
        }
    }
    return result;
}

}  // namespace vorn_std
