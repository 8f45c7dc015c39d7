#include "vorn_std/log/StaticLogPtr.h"

#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

StaticLogPtr::StaticLogPtr() : instance(nullptr), singletonLock(nullptr) {}

StaticLogPtr::StaticLogPtr(StaticLog* target) : instance(nullptr), singletonLock(nullptr) {
    reset(target);
}

StaticLogPtr::StaticLogPtr(StaticLogPtr& other)
    : instance(other.instance), singletonLock(other.singletonLock) {
    other.instance = nullptr;
    other.singletonLock = nullptr;
}

StaticLogPtr& StaticLogPtr::operator=(StaticLogPtr& other) {
    if (this != &other) {
        release();
        instance = other.instance;
        singletonLock = other.singletonLock;
        other.instance = nullptr;
        other.singletonLock = nullptr;
    }
    return *this;
}

StaticLogPtr::~StaticLogPtr() { release(); }

void StaticLogPtr::reset(StaticLog* target) {
    release();
    Lock* outer = StaticLog::singletonLock.load();
    if (target == nullptr || outer == nullptr) {
        return;
    }
    outer->lock();
    try {
        target->lock->lock();
    } catch (...) {
        outer->unlock();
        throw;
    }
    instance = target;
    singletonLock = outer;
}

void StaticLogPtr::release() {
    if (instance != nullptr) {
        instance->lock->unlock();
        singletonLock->unlock();
        instance = nullptr;
        singletonLock = nullptr;
    }
}

}  // namespace vorn_std
