#include "vorn_std/pattern/SingletonManager.h"

#include <atomic>

#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/exception/VornIllegalStateException.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Lock.h"
#include "vorn_std/thread/ReadWriteLock.h"

namespace vorn_std {

namespace {

constexpr int SingletonReaders = 64;
constexpr const wchar_t* LocksDestroyedText = L"Singleton locks have been destroyed.";
constexpr const wchar_t* CreationFailedText =
    L"Creating SingletonManager instance failed, state cannot be guaranteed.";

// Plain pointers with constant initialisation: set at load, read by any
// thread, and never freed, since a late caller may still reach them.
std::atomic<Lock*> lock{nullptr};
std::atomic<ReadWriteLock*> singletonLock{nullptr};
std::atomic<SingletonManager*> instance{nullptr};

}  // namespace

void SingletonManager::initLocks() {
    try {
        lock = new Lock();
    } catch (const VornIllegalArgumentException&) {
    }
    try {
        singletonLock = new ReadWriteLock(SingletonReaders);
    } catch (const VornIllegalArgumentException&) {
    }
}

SingletonManager& SingletonManager::getInstance() {
    if (lock.load() == nullptr) {
        throw VornIllegalStateException(LocksDestroyedText);
    }
    if (instance.load() == nullptr) {
        initInstance();
    }
    return *instance.load();
}

ReadWriteLock* SingletonManager::getSingletonLock() { return singletonLock.load(); }

void SingletonManager::initInstance() {
    try {
        Lock* guardLock = lock.load();
        if (guardLock == nullptr) {
            throw VornIllegalStateException(LocksDestroyedText);
        }
        AutoLock<Lock> guard(guardLock);
        if (instance.load() == nullptr) {
            instance = new SingletonManager();
        }
    } catch (...) {
        throw VornIllegalStateException(CreationFailedText);
    }
}

void SingletonManager::destroyInstance() {
    Lock* guardLock = lock.load();
    if (guardLock != nullptr) {
        AutoLock<Lock> guard(guardLock);
        instance = nullptr;
    } else {
        instance = nullptr;
    }
}

void SingletonManager::destroyLocks() {
    lock = nullptr;
    singletonLock = nullptr;
}

}  // namespace vorn_std
