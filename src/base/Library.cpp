#include "vorn_std/base/Library.h"

#include <atomic>

#include "internal/StaticLogControl.h"
#include "internal/UnloadList.h"

namespace vorn_std {

namespace {

std::atomic<bool> loaded{false};
std::atomic<bool> unloaded{false};

}  // namespace

// The load steps, in their fixed order, grow here as the subsystems that own
// them join the library: singleton locks, the static log's locks, the class
// registrations, the XML system.
void libraryInitialize() {
    if (unloaded.load() || loaded.exchange(true)) {
        return;
    }
}

void libraryTerminate() {
    if (unloaded.exchange(true)) {
        return;
    }
    vorn_std_internal::StaticLogControl::destroyInstance();
    vorn_std_internal::UnloadList::destroyAll();
}

}  // namespace vorn_std
