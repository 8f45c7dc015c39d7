#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/thread/Runnable.h"
#include "vorn_std/thread/Waitable.h"

namespace vorn_std_internal {
class ThreadPimpl;
}

namespace vorn_std {

// The library's thread object, in the Java manner: subclass it and override
// run(), or give it a Runnable. It is a manual-reset Waitable, signalled while
// not running, so joining a thread is a wait like any other, and one wait can
// mix threads with events and locks.
//
// The system thread is detached and shares ownership of the object's state,
// so a plain Thread made with a Runnable may be destroyed at any time after
// start() (with joinOnDestruct off) and its Runnable still runs to the end.
// A subclass's object must outlive its run(). An exception that leaves run()
// is logged as STD3008 and never ends the process. cancel() releases joiners
// at once, before the system thread has really ended.
class VORNSTD_API Thread : public Runnable, public Waitable {
public:
    enum ThreadState { THREAD_NOT_STARTED = 0, THREAD_RUNNING = 1, THREAD_STOPPED = 2 };
    enum ThreadPriority { PRIORITY_LOW = 0, PRIORITY_NORMAL = 1, PRIORITY_HIGH = 2 };

    static constexpr unsigned long long InvalidThreadID = 0x00000000FFFFFFFFULL;

    // For subclasses; joinOnDestruct is off.
    explicit Thread(const std::wstring& name);
    // Runs the given Runnable; joinOnDestruct is on.
    Thread(const std::shared_ptr<Runnable>& runnable, const std::wstring& name);
    // With joinOnDestruct on and the thread running, waits for it first.
    ~Thread() override;

    std::wstring toString() const override;
    // Throws VornIllegalStateException if already running. A stopped thread may start again.
    virtual void start();
    void run() override;
    // True once the thread has stopped (at once for one never started).
    bool join(long timeoutMs);
    // 0 once the system thread has begun, -1 on timeout.
    int waitForStart(long timeoutMs);
    // Throws VornIllegalStateException if not running.
    void cancel();
    ThreadState getState();
    ThreadPriority getPriority();
    void setPriority(ThreadPriority priority);
    std::wstring getName() const;
    void setName(const std::wstring& name);
    void setJoinOnDestruct(bool join);
    bool isJoinOnDestruct() const;
    // The running thread's numeric id; InvalidThreadID unless running (and
    // possibly until waitForStart() has returned).
    unsigned long long getId() const;

    // The operating system's numeric id of the calling thread; the same value
    // on every call from one thread. Lock-free after the thread's first call.
    static unsigned long long getCurrentThreadId();
    // A negative value counts as 0.
    static void sleep(long ms);

private:
    friend class vorn_std_internal::ThreadPimpl;

    std::shared_ptr<vorn_std_internal::ThreadPimpl> implementation;
    bool joinOnDestruct;
};

// Empties the process-wide table of thread ids, for the host; nothing in the
// library calls it.
VORNSTD_API void clearThreadIdMap();

}  // namespace vorn_std
