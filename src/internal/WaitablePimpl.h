#pragma once

#include <pthread.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

#include "vorn_std/base/Export.h"
#include "vorn_std/thread/Subscription.h"
#include "vorn_std/thread/SubscriptionCondition.h"

namespace vorn_std_internal {

// The state of one Waitable. Shared by the object and by every subscription
// made on it, so it outlives the object while a waiter is still leaving.
//
// Lock order: this mutex, then a subscriber's condition. A subscriber never
// holds its condition while it takes this mutex.
class WaitablePimpl {
public:
    WaitablePimpl(bool autoReset, bool signaled);
    ~WaitablePimpl();
    WaitablePimpl(const WaitablePimpl&) = delete;
    WaitablePimpl& operator=(const WaitablePimpl&) = delete;

    bool isSignaled() const { return signaled.load(std::memory_order_relaxed); }
    void setSignaled(bool value) { signaled.store(value, std::memory_order_relaxed); }
    bool isAutoReset() const { return autoReset.load(std::memory_order_relaxed); }
    void setAutoReset(bool value) { autoReset.store(value, std::memory_order_relaxed); }

    void signal();
    void subscribe(vorn_std::Subscription& subscription);
    void unsubscribe(vorn_std::Subscription& subscription);
    // The object is going away: every waiter learns it, and nothing joins later.
    void destroy();
    size_t subscriberCount();

private:
    // Conditions to signal once the object's mutex is released.
    using Wakeups = std::vector<std::shared_ptr<vorn_std::SubscriptionCondition>>;

    void notifyAll(vorn_std::Subscription::SubscriptionState state, Wakeups& wakeups);
    static void mark(vorn_std::Subscription* subscriber,
                     vorn_std::Subscription::SubscriptionState state, Wakeups& wakeups);
    static void wake(Wakeups& wakeups);

    pthread_mutex_t mutex;
    std::vector<vorn_std::Subscription*> subscribers;  // guarded by mutex; not owned
    std::atomic<bool> signaled;
    std::atomic<bool> autoReset;
};

// Lets tests see who waits on an object, so they can order threads without sleeping.
class VORNSTD_API WaitableInspector {
public:
    static size_t subscriberCount(const vorn_std::Waitable& waitable);
};

}  // namespace vorn_std_internal
