#include "internal/UnloadList.h"

#include "vorn_std/pattern/Singleton.h"

#include <pthread.h>

#include <vector>

#include "internal/PThreadMutexLock.h"

namespace vorn_std_internal {

namespace {

pthread_mutex_t listMutex = PTHREAD_MUTEX_INITIALIZER;

// Never freed: it must outlive every static destructor of the process.
std::vector<std::function<void()>>& entries() {
    static auto* list = new std::vector<std::function<void()>>();
    return *list;
}

}  // namespace

void UnloadList::add(std::function<void()> destroy) {
    PThreadMutexLock guard(&listMutex);
    entries().push_back(std::move(destroy));
}

void UnloadList::destroyAll() {
    for (;;) {
        std::function<void()> destroy;
        {
            PThreadMutexLock guard(&listMutex);
            if (entries().empty()) {
                return;
            }
            destroy = std::move(entries().back());
            entries().pop_back();
        }
        destroy();
    }
}

}  // namespace vorn_std_internal

namespace vorn_std_internal {

void destroyAtUnload(void (*destroy)(void*), void* object) {
    UnloadList::add([destroy, object] { destroy(object); });
}

}  // namespace vorn_std_internal
