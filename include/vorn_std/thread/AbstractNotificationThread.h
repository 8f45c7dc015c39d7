#pragma once

#include <memory>

#include "vorn_std/thread/Thread.h"

namespace vorn_std_internal {
struct NotificationState;
}

namespace vorn_std {

// Base of the library's background service threads. A subclass's run() has
// the shape
//     while (!isShutdown()) { work(); sleepForPeriod(period); }
// wakeup() ends the current or the next sleep (it is not lost while the loop
// works); shutdown() sets the flag and wakes the loop. start() clears the flag,
// so a stopped thread may start again.
//
// The destructor does not join: it shuts down and gives the loop 10 ms to see
// the flag. An owner that must be sure the loop has ended calls shutdown(),
// then join(), before destroying the object. The lock is taken before the
// wake event's mutex.
class VORNSTD_API AbstractNotificationThread : public Thread {
public:
    explicit AbstractNotificationThread(const std::wstring& name);
    AbstractNotificationThread(const std::shared_ptr<Runnable>& runnable, const std::wstring& name);
    ~AbstractNotificationThread() override;

    std::wstring toString() const override;
    void start() override;
    virtual void shutdown();
    virtual void wakeup();
    // Unlocked read.
    bool isShutdown() const;

protected:
    // 0 when woken, -1 when the period ran out.
    int sleepForPeriod(long ms);

private:
    std::shared_ptr<vorn_std_internal::NotificationState> state;
};

}  // namespace vorn_std
