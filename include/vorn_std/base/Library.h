#pragma once

#include "vorn_std/base/Export.h"

namespace vorn_std {

// The library's load and unload steps. They run by themselves when
// libvornstd.so is loaded and unloaded (and at normal process exit); a host
// linking statically, or a test, may call them. Both are idempotent.
//
// Unload leaves the static log in its destroyed state (statements go to the
// debugger output from then on) before it destroys the library's process-wide
// objects in reverse order of creation, so their last trace lines are kept.
VORNSTD_API void libraryInitialize();
VORNSTD_API void libraryTerminate();

}  // namespace vorn_std
