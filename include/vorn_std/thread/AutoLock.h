#pragma once

#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std {

// Holds anything with lock() and unlock() for the length of a scope.
template <typename T>
class AutoLock : public Object {
public:
    explicit AutoLock(T* lockable) : lockable(lockable) { lockable->lock(); }
    explicit AutoLock(T& lockable) : AutoLock(&lockable) {}
    ~AutoLock() override { lockable->unlock(); }
    AutoLock(const AutoLock&) = delete;
    AutoLock& operator=(const AutoLock&) = delete;

    std::wstring toString() const override { return L"AutoLock{}"; }

private:
    T* lockable;
};

}  // namespace vorn_std
