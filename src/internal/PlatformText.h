#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// Conversions at the platform boundary (file names, environment, argv, the
// debugger output) between the library's wide strings, one UTF-16 unit per
// wchar_t, and UTF-8 bytes. Surrogate pairs become one four-byte sequence.
// A byte that does not decode becomes U+DC80+byte and converts back to the
// same byte, so every name the system hands out round-trips; any other lone
// surrogate is written as U+FFFD.
VORNSTD_API std::string toPlatformUtf8(const std::wstring& text);
VORNSTD_API std::wstring fromPlatformUtf8(const std::string& bytes);

}  // namespace vorn_std_internal
