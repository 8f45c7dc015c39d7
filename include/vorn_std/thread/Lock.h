#pragma once

#include <memory>

#include "vorn_std/thread/Waitable.h"

namespace vorn_std_internal {
class LockPimpl;
}

namespace vorn_std {

// A recursive mutex owned by one thread, and an auto-reset Waitable that is
// signalled by each outermost unlock. Waiting on a Lock does not acquire it:
// the wait ends at an unlock, and lock() must still be called. Hold it for a
// scope with AutoLock<Lock>.
class VORNSTD_API Lock : public Waitable {
public:
    Lock();
    ~Lock() override;

    std::wstring toString() const override;
    // Blocks until the calling thread owns the lock; nests for the owner.
    virtual void lock();
    // Throws VornAccessException if the caller is not the owner.
    virtual void unlock();
    virtual bool tryLock();

private:
    std::shared_ptr<vorn_std_internal::LockPimpl> pimpl;
};

}  // namespace vorn_std
