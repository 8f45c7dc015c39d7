#pragma once

#include <string>

namespace vorn_std_internal {

// The platform's environment, version and host name, as UTF-8 at the boundary.
bool getEnvironment(const std::string& name, std::string& value);
bool setEnvironment(const std::string& name, const std::string& value);
// The operating system's name and release, such as "Linux" and "6.1.0".
bool getSystemRelease(std::string& system, std::string& release);
bool getHostName(std::string& name);

}  // namespace vorn_std_internal
