#pragma once

namespace vorn_std_internal {

// Puts the library's configurable classes into the class registry, in their
// fixed order. Run once, at library load.
void registerLibraryClasses();

}  // namespace vorn_std_internal
