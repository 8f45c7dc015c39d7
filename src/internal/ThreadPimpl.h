#pragma once

#include <pthread.h>

#include <memory>
#include <string>

#include "vorn_std/thread/Event.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std_internal {

// The state of one Thread, shared with the system thread it starts, so that
// it lives as long as the longer of the two.
//
// Lock order: this (recursive) mutex, then the Thread's Waitable mutex, then
// the thread id table's mutex.
class ThreadPimpl {
public:
    ThreadPimpl(vorn_std::Thread* owner, const std::shared_ptr<vorn_std::Runnable>& runnable,
                const std::wstring& name);
    ~ThreadPimpl();
    ThreadPimpl(const ThreadPimpl&) = delete;
    ThreadPimpl& operator=(const ThreadPimpl&) = delete;

    void lock() { pthread_mutex_lock(&mutex); }
    void unlock() { pthread_mutex_unlock(&mutex); }

    vorn_std::Thread::ThreadState state;  // guarded by mutex
    pthread_t handle;                     // guarded by mutex
    std::shared_ptr<vorn_std::Runnable> runnable;
    bool threadObjectGone;     // guarded by mutex
    vorn_std::Thread* owner;   // valid while !threadObjectGone
    std::wstring name;         // guarded by mutex
    vorn_std::Event startedEvent;

    // The system thread's body; takes ownership of a heap shared pointer.
    static void* threadFunction(void* argument);

private:
    void runBody(const std::wstring& id, const std::wstring& threadName);
    void finish(const std::wstring& id, const std::wstring& threadName);

    pthread_mutex_t mutex;
};

}  // namespace vorn_std_internal
