#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/thread/Runnable.h"

namespace vorn_std {

// Runs tasks.
class VORNSTD_API Executor {
public:
    virtual ~Executor();
    virtual std::wstring toString() const;
    virtual void execute(const std::shared_ptr<Runnable>& command) = 0;
};

}  // namespace vorn_std
