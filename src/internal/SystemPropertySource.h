#pragma once

#include <string>

namespace vorn_std_internal {

// A process-wide property of VornSystem, or defaultValue when it is not set.
// Lets low-level classes read a setting without depending on the singleton's header.
std::wstring readSystemProperty(const std::wstring& key, const std::wstring& defaultValue);

}  // namespace vorn_std_internal
