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
// Where the given-up locks stay, reachable but out of use: a late caller may
// still be waiting on one.
std::atomic<Lock*> retiredLock{nullptr};
std::atomic<ReadWriteLock*> retiredSingletonLock{nullptr};
std::atomic<SingletonManager*> retiredInstance{nullptr};

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
        retiredInstance = instance.exchange(nullptr);
    } else {
        retiredInstance = instance.exchange(nullptr);
    }
}

void SingletonManager::destroyLocks() {
    retiredLock = lock.exchange(nullptr);
    retiredSingletonLock = singletonLock.exchange(nullptr);
}

}  // namespace vorn_std
