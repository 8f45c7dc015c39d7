#pragma once

#include <memory>

#include "vorn_std/thread/Waitable.h"

namespace vorn_std_internal {
class SemaphorePimpl;
}

namespace vorn_std {

// A counting semaphore that is also an auto-reset Waitable. A wait on it
// concerns the Waitable part only: it does not take from the count, and
// decrement() does not touch the signal. Wait, then tryDecrement() or
// decrement(). A semaphore that starts at 3 wakes one waiter, not three,
// until increment() is called again.
class VORNSTD_API Semaphore : public Waitable {
public:
    // A value below 0 counts as 0.
    explicit Semaphore(long initialValue);
    ~Semaphore() override;

    std::wstring toString() const override;
    void increment();
    // Blocks until the count is above 0.
    void decrement();
    bool tryDecrement();
    int getValue() const;
    // As increment() and decrement(), but every exception is dropped.
    void operator++(int);
    void operator--(int);

private:
    std::shared_ptr<vorn_std_internal::SemaphorePimpl> semaphore;
};

}  // namespace vorn_std
