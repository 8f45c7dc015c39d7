#pragma once

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std_internal {

// The library's own hands on the static log's state: configuration sets the
// threshold and marks the log initialized, unload destroys it.
class VORNSTD_API StaticLogControl {
public:
    static bool isInitialized();
    static void setInitialized(bool initialized);
    static void setCurrentThreshold(vorn_std::LogEventPriority threshold);
    static void destroyInstance();
};

}  // namespace vorn_std_internal
