#include "vorn_std/base/Library.h"

#include <atomic>

#include "base/ClassRegistrations.h"
#include "internal/StaticLogControl.h"
#include "internal/UnloadList.h"
#include "vorn_std/log/VornLoggerSTD.h"
#include "vorn_std/pattern/SingletonManager.h"
#include "vorn_std/system/VornSystem.h"

namespace vorn_std {

namespace {

std::atomic<bool> loaded{false};
std::atomic<bool> unloaded{false};

}  // namespace

// The load steps in their fixed order; the XML system's start joins them last
// when it exists.
void libraryInitialize() {
    if (unloaded.load() || loaded.exchange(true)) {
        return;
    }
    SingletonManager::initLocks();
    vorn_std_internal::StaticLogControl::initLocks();
    vorn_std_internal::registerLibraryClasses();
    // Reached first by several library threads at once: made here, where
    // nobody can race for them.
    VornSystem::getInstance();
    VornLoggerSTD::getInstance();
}

// The unload steps in their fixed order (the XML system and the Java callback
// queue join the front when they exist); then the process-wide objects die,
// newest first, with the log already in its destroyed state.
void libraryTerminate() {
    if (unloaded.exchange(true)) {
        return;
    }
    vorn_std_internal::StaticLogControl::destroyInstance();
    SingletonManager::destroyLocks();
    SingletonManager::destroyInstance();
    vorn_std_internal::UnloadList::destroyAll();
}

}  // namespace vorn_std
