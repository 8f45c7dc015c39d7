#include "internal/ThreadIdentity.h"

#include <map>
#include <mutex>

#include "internal/PThreadMutexLock.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std_internal {

struct ThreadIdMap::State {
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    std::map<pthread_t, unsigned long long> ids;  // guarded by mutex
    pthread_key_t exitKey{};
};

ThreadIdMap::ThreadIdMap() : state(new State) {
    // The key's destructor runs as each registered thread ends and drops its
    // entry, so a reused handle never inherits a dead thread's id.
    pthread_key_create(&state->exitKey, [](void* handle) {
        ThreadIdMap& map = ThreadIdMap::getInstance();
        PThreadMutexLock guard(&map.state->mutex);
        map.state->ids.erase(reinterpret_cast<pthread_t>(handle));
    });
}

ThreadIdMap& ThreadIdMap::getInstance() {
    static std::once_flag once;
    static ThreadIdMap* instance = nullptr;
    std::call_once(once, [] { instance = new ThreadIdMap(); });
    return *instance;
}

unsigned long long ThreadIdMap::getThreadId(pthread_t handle) {
    if (handle == 0) {
        return vorn_std::Thread::InvalidThreadID;
    }
    if (pthread_equal(handle, pthread_self())) {
        return vorn_std::Thread::getCurrentThreadId();
    }
    PThreadMutexLock guard(&state->mutex);
    auto found = state->ids.find(handle);
    return found == state->ids.end() ? vorn_std::Thread::InvalidThreadID : found->second;
}

unsigned long long ThreadIdMap::registerCurrentThread() {
    unsigned long long id = currentOsThreadId();
    pthread_t self = pthread_self();
    {
        PThreadMutexLock guard(&state->mutex);
        state->ids[self] = id;
    }
    pthread_setspecific(state->exitKey, reinterpret_cast<void*>(self));
    return id;
}

void ThreadIdMap::forget(pthread_t handle) {
    PThreadMutexLock guard(&state->mutex);
    state->ids.erase(handle);
}

void ThreadIdMap::clear() {
    PThreadMutexLock guard(&state->mutex);
    state->ids.clear();
}

}  // namespace vorn_std_internal


namespace vorn_std {

unsigned long long Thread::getCurrentThreadId() {
    thread_local unsigned long long cached = InvalidThreadID;
    if (cached == InvalidThreadID) {
        cached = vorn_std_internal::ThreadIdMap::getInstance().registerCurrentThread();
    }
    return cached;
}

void clearThreadIdMap() { vorn_std_internal::ThreadIdMap::getInstance().clear(); }

}  // namespace vorn_std
