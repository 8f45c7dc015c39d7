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
    PThreadMutexLock guard(&mutex);
    if (!isAutoReset()) {
        setSignaled(true);
        notifyAll(Subscription::SUBSCRIPTION_SIGNALED);
    } else if (!subscribers.empty()) {
        // First come, first served: one waiter per signal, and the signal is spent.
        Subscription* first = subscribers.front();
        subscribers.erase(subscribers.begin());
        setSignaled(false);
        wake(first, Subscription::SUBSCRIPTION_SIGNALED);
    } else {
        setSignaled(true);
    }
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
    PThreadMutexLock guard(&mutex);
    notifyAll(Subscription::SUBSCRIPTION_DESTROYED);
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
void WaitablePimpl::notifyAll(Subscription::SubscriptionState state) {
    for (Subscription* subscriber : subscribers) {
        wake(subscriber, state);
    }
    subscribers.clear();
}

// The state changes under the condition's mutex; the wake-up comes after it is
// released, so the waiter does not wake only to block on that mutex. The
// condition cannot vanish meanwhile: its waiter must take this object's mutex,
// held here, before it lets its subscriptions go.
void WaitablePimpl::wake(Subscription* subscriber, Subscription::SubscriptionState state) {
    {
        vorn_std::AutoLock<Subscription> condition(subscriber);
        subscriber->setState(state);
    }
    subscriber->signal();
}

}  // namespace vorn_std_internal
