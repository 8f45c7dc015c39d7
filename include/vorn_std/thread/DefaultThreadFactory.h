#pragma once

#include <memory>
#include <string>

#include "vorn_std/thread/AtomicInteger.h"
#include "vorn_std/thread/ThreadFactory.h"

namespace vorn_std {

// Names its threads prefix + number from 0: "name-thread-0", or for an
// unnamed factory "pool-<pool number>-thread-0", pools counted from 0 per process.
class VORNSTD_API DefaultThreadFactory : public ThreadFactory {
public:
    static AtomicInteger& poolNumber;

    explicit DefaultThreadFactory(const std::wstring& name);
    std::wstring toString() const override;
    // Not started. Throws VornIllegalArgumentException for a null Runnable.
    std::shared_ptr<Thread> newThread(const std::shared_ptr<Runnable>& runnable) override;

private:
    AtomicInteger threadNumber;
    std::wstring namePrefix;
};

}  // namespace vorn_std
