#include "base/ClassRegistrations.h"

#include "vorn_std/log/DebugFileFilter.h"
#include "vorn_std/log/LogFileFilter.h"
#include "vorn_std/log/VornLogLayout.h"

namespace vorn_std_internal {

// The one list of classes registered at load, in the order configuration
// files may rely on. Each class joins here when it exists:
// RegistryPreferencesFactory, Paths and FilePreferencesFactory come before
// the log classes; RollingFileAppender, OutputDebugAppender and
// NTEventLogAppender after them.
void registerLibraryClasses() {
    vorn_std::DebugFileFilter::registerClass();
    vorn_std::LogFileFilter::registerClass();
    vorn_std::VornLogLayout::registerClass();
}

}  // namespace vorn_std_internal
