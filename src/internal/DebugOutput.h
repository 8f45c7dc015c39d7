#pragma once

#include <cstddef>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// The platform's debugger output: standard error, or the file named by the
// environment variable VORNSTD_DEBUG_OUTPUT (appended to), or nothing when it
// says "none". The destination is looked up on every write, so a host or a
// test may redirect it at any time. Takes no lock of the library.
class VORNSTD_API DebugOutput {
public:
    // One write of the text converted to UTF-8.
    static void write(const std::wstring& text);
    // Async-signal-safe: no allocation, no lock.
    static void writeBytes(const char* bytes, size_t length);
};

}  // namespace vorn_std_internal
