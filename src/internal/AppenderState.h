#pragma once

#include <memory>

#include "vorn_std/log/ILogEventFilter.h"
#include "vorn_std/log/ILogEventLayout.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std_internal {

// What every appender holds: its lock, and the filter and layout it guards.
struct AppenderState {
    vorn_std::Lock lock;
    std::shared_ptr<vorn_std::ILogEventFilter> filter;  // guarded by lock
    std::shared_ptr<vorn_std::ILogEventLayout> layout;  // guarded by lock
};

}  // namespace vorn_std_internal
