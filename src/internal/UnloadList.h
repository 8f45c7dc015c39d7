#pragma once

#include <functional>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// The library's process-wide objects, destroyed by libraryTerminate in reverse
// order of registration, after the static log has reached its destroyed state.
//
// At process exit glibc destroys function-local statics before it runs a
// shared library's destructor functions; objects left to the exit list would
// die before the unload steps and with their last trace lines lost. Objects
// registered here die after those steps instead.
class VORNSTD_API UnloadList {
public:
    static void add(std::function<void()> destroy);
    // Runs each entry once, newest first, outside the list's lock, so an
    // entry may register or log.
    static void destroyAll();
};

}  // namespace vorn_std_internal
