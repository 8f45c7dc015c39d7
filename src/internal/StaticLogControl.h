#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std {
class ILogAppender;
}

namespace vorn_std_internal {

// The library's own hands on the static log's state: load makes its locks,
// configuration makes the instance and sets the threshold, unload destroys it.
class VORNSTD_API StaticLogControl {
public:
    static bool isInitialized();
    static void setInitialized(bool initialized);
    static void setCurrentThreshold(vorn_std::LogEventPriority threshold);
    static void destroyInstance();
    static void initLocks();
    // Makes the instance with appenders and a threshold given in code: what
    // configuration from the log's .cfg file does, without the file. A second
    // call changes nothing; an empty list leaves the log uninitialised.
    static void initInstance(const std::wstring& moduleName,
                             const std::vector<std::shared_ptr<vorn_std::ILogAppender>>& appenders,
                             vorn_std::LogEventPriority threshold);
};

}  // namespace vorn_std_internal
