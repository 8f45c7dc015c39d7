#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std_internal {
class WaitablePimpl;
class WaitableInspector;
}

namespace vorn_std {

class Subscription;

// Something a thread can wait for with Concurrency's waits: signalled or not,
// auto-reset (one signal releases one waiter) or manual-reset (a signal
// releases every waiter and stays set). Lock, Event, Semaphore and Thread are
// Waitables, so one wait can mix them.
//
// Any thread may signal; the state is guarded by the object's own mutex.
// isSignaled() is an unlocked snapshot. Destroying the object wakes every
// waiter, which then raises VornWaitObjectDestroyedException.
class VORNSTD_API Waitable : public Object {
public:
    Waitable(bool autoReset, bool signaled);
    ~Waitable() override;
    Waitable(const Waitable&) = delete;
    Waitable& operator=(const Waitable&) = delete;

    std::wstring toString() const override;
    bool isSignaled() const;

protected:
    bool isAutoReset() const;
    void setAutoReset(bool autoReset);
    // Changes the flag only: nobody is woken or removed.
    void setSignaled(bool signaled);
    virtual void signal();
    void subscribe(Subscription& subscription);
    void unsubscribe(Subscription& subscription);

private:
    friend class Subscription;
    friend class vorn_std_internal::WaitableInspector;

    std::shared_ptr<vorn_std_internal::WaitablePimpl> pimpl;
};

}  // namespace vorn_std
