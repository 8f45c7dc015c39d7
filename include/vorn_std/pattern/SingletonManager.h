#pragma once

#include <map>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/base/Library.h"

namespace vorn_std {

class Lock;
class ReadWriteLock;

// Holds the two global locks of the foundation, made first of all when the
// library loads and given up (not freed) when it unloads. The library itself
// never asks for the manager; its singletonLock (64 readers) is for hosts.
class VORNSTD_API SingletonManager {
public:
    // Throws VornIllegalStateException "Singleton locks have been destroyed."
    // once the library has unloaded.
    static SingletonManager& getInstance();

    static ReadWriteLock* getSingletonLock();

private:
    friend void libraryInitialize();
    friend void libraryTerminate();

    SingletonManager() = default;
    static void initLocks();
    static void initInstance();
    static void destroyInstance();
    static void destroyLocks();

    std::map<std::wstring, std::wstring> entries;
};

}  // namespace vorn_std
