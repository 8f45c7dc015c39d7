#pragma once

#include <string>
#include <type_traits>

#include "vorn_std/base/Object.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

// A counter guarded by its own Lock (not a processor atomic): every operation,
// a plain get included, holds the lock for its whole body. Arithmetic wraps
// at the width of T. Base of AtomicInteger and AtomicLong.
template <typename T>
class AtomicValue : public Object {
public:
    AtomicValue() : value(0) {}
    explicit AtomicValue(T initialValue) : value(initialValue) {}
    AtomicValue(const AtomicValue&) = delete;
    AtomicValue& operator=(const AtomicValue&) = delete;

    T get() const {
        AutoLock<Lock> guard(&lock);
        return value;
    }
    void set(T newValue) {
        AutoLock<Lock> guard(&lock);
        value = newValue;
    }
    bool compareAndSet(T expect, T update) {
        AutoLock<Lock> guard(&lock);
        if (value != expect) {
            return false;
        }
        value = update;
        return true;
    }
    T getAndSet(T newValue) {
        AutoLock<Lock> guard(&lock);
        const T old = value;
        value = newValue;
        return old;
    }
    T addAndGet(T delta) {
        AutoLock<Lock> guard(&lock);
        value = wrap(value, delta);
        return value;
    }
    T getAndAdd(T delta) {
        AutoLock<Lock> guard(&lock);
        const T old = value;
        value = wrap(value, delta);
        return old;
    }
    T incrementAndGet() { return addAndGet(1); }
    T decrementAndGet() { return addAndGet(static_cast<T>(-1)); }
    T getAndIncrement() { return getAndAdd(1); }
    T getAndDecrement() { return getAndAdd(static_cast<T>(-1)); }

protected:
    std::wstring format(const wchar_t* name) const {
        return std::wstring(name) + L"{value=" + std::to_wstring(get()) + L"}";
    }

private:
    using Unsigned = std::make_unsigned_t<T>;
    static T wrap(T a, T b) {
        return static_cast<T>(static_cast<Unsigned>(a) + static_cast<Unsigned>(b));
    }

    mutable Lock lock;
    T value;  // guarded by lock
};

}  // namespace vorn_std
