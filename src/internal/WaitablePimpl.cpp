#include "internal/WaitablePimpl.h"

#include <algorithm>

#include "internal/PThreadMutexLock.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Waitable.h"

namespace vorn_std_internal {

using vorn_std::Subscription;

WaitablePimpl::WaitablePimpl(bool autoReset, bool signaled)
    : signaled(signaled), autoReset(autoReset) {
    pthread_mutex_init(&mutex, nullptr);
}

WaitablePimpl::~WaitablePimpl() { pthread_mutex_destroy(&mutex); }

void WaitablePimpl::signal() {
    Wakeups wakeups;
    {
        PThreadMutexLock guard(&mutex);
        if (!isAutoReset()) {
            setSignaled(true);
            notifyAll(Subscription::SUBSCRIPTION_SIGNALED, wakeups);
        } else if (!subscribers.empty()) {
            // First come, first served: one waiter per signal, and the signal is spent.
            Subscription* first = subscribers.front();
            subscribers.erase(subscribers.begin());
            setSignaled(false);
            mark(first, Subscription::SUBSCRIPTION_SIGNALED, wakeups);
        } else {
            setSignaled(true);
        }
    }
    wake(wakeups);
}

void WaitablePimpl::subscribe(Subscription& subscription) {
    PThreadMutexLock guard(&mutex);
    if (isSignaled()) {
        // The subscriber is the caller: it needs no wake-up.
        subscription.setState(Subscription::SUBSCRIPTION_SIGNALED);
        if (isAutoReset()) {
            setSignaled(false);
        }
    } else {
        subscribers.push_back(&subscription);
    }
}

void WaitablePimpl::unsubscribe(Subscription& subscription) {
    PThreadMutexLock guard(&mutex);
    subscribers.erase(std::remove(subscribers.begin(), subscribers.end(), &subscription),
                      subscribers.end());
}

void WaitablePimpl::destroy() {
    Wakeups wakeups;
    {
        PThreadMutexLock guard(&mutex);
        notifyAll(Subscription::SUBSCRIPTION_DESTROYED, wakeups);
    }
    wake(wakeups);
}

size_t WaitablePimpl::subscriberCount() {
    PThreadMutexLock guard(&mutex);
    return subscribers.size();
}

size_t WaitableInspector::subscriberCount(const vorn_std::Waitable& waitable) {
    return waitable.pimpl->subscriberCount();
}

// One subscriber at a time: holding several conditions at once would order
// them against another object's notification in the opposite order.
void WaitablePimpl::notifyAll(Subscription::SubscriptionState state, Wakeups& wakeups) {
    for (Subscription* subscriber : subscribers) {
        mark(subscriber, state, wakeups);
    }
    subscribers.clear();
}

// The state changes under the condition's mutex, with this object's mutex
// held, as the waiter expects; the wake-up itself comes after both are
// released (wake), so the waiter never wakes only to block on a mutex the
// signaller still holds. The copied pointer keeps the condition alive until
// then, as the waiter may already have left.
void WaitablePimpl::mark(Subscription* subscriber, Subscription::SubscriptionState state,
                         Wakeups& wakeups) {
    vorn_std::AutoLock<Subscription> condition(subscriber);
    subscriber->setState(state);
    wakeups.push_back(subscriber->getCondition());
}

void WaitablePimpl::wake(Wakeups& wakeups) {
    for (const auto& condition : wakeups) {
        condition->signal();
    }
}

}  // namespace vorn_std_internal
