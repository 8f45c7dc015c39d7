#pragma once

#include <atomic>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/InternalDebug.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std_internal {
// Keeps a process-wide object until the library unloads (defined in UnloadList).
VORNSTD_API void destroyAtUnload(void (*destroy)(void*), void* object);
}

namespace vorn_std {

// One lazily made instance of T for the life of the process. T declares
// Singleton<T> a friend, keeps its constructor private and provides a private
// static getSingletonName() with its qualified name.
//
// First use belongs in one thread, or at start-up: there is deliberately no
// second test under the lock, so two threads that both find no instance make
// two, and the later one is published. The earlier one is not freed while a
// caller may still hold a reference to it; both die at library unload, in
// reverse order of creation, after the log has been destroyed, so their last
// trace lines reach the debugger output.
//
// After creation getInstance() is one atomic load. A T whose constructor
// calls its own getInstance() recurses; singletons of different classes may
// construct one another, as each has a lock of its own.
template <typename T>
class VORNSTD_API Singleton {
public:
    static T& getInstance();

protected:
    Singleton() = default;
    ~Singleton() = default;

private:
    static std::atomic<T*>& instance();
    static Lock& singletonLock();
    static void destroy(void* object);
};

// Defined out of the class so that they are not inline: each process then has
// exactly one instance pointer and one lock per T, shared by every module.

template <typename T>
T& Singleton<T>::getInstance() {
    T* current = instance().load(std::memory_order_acquire);
    if (current != nullptr) {
        return *current;
    }
    Lock& lock = singletonLock();
    if (__internal_trace_on()) {
        __internal_trace(L"vorn_std::Singleton::getInstance", L"Singleton.h", __LINE__,
                         L"Creating singleton <%ls>.", T::getSingletonName().c_str());
    }
    {
        AutoLock<Lock> guard(&lock);
        T* created = new T();
        vorn_std_internal::destroyAtUnload(&Singleton<T>::destroy, created);
        instance().store(created, std::memory_order_release);
    }
    if (__internal_trace_on()) {
        __internal_trace(L"vorn_std::Singleton::getInstance", L"Singleton.h", __LINE__,
                         L"Created singleton <%ls>.", T::getSingletonName().c_str());
    }
    return *instance().load(std::memory_order_acquire);
}

// Neither static is ever destroyed: both must outlive the exit list.
template <typename T>
std::atomic<T*>& Singleton<T>::instance() {
    static std::atomic<T*> published{nullptr};
    return published;
}

template <typename T>
Lock& Singleton<T>::singletonLock() {
    static Lock* lock = new Lock();
    return *lock;
}

// At unload: a later getInstance() makes a fresh instance rather than
// reaching the one being deleted.
template <typename T>
void Singleton<T>::destroy(void* object) {
    T* expected = static_cast<T*>(object);
    instance().compare_exchange_strong(expected, nullptr);
    delete static_cast<T*>(object);
}

}  // namespace vorn_std
