#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

// Makes threads for a Runnable.
class VORNSTD_API ThreadFactory : public Object {
public:
    ~ThreadFactory() override;
    std::wstring toString() const override;
    virtual std::shared_ptr<Thread> newThread(const std::shared_ptr<Runnable>& runnable) = 0;
};

}  // namespace vorn_std
