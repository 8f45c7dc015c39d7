#include <stdlib.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "internal/SystemInfo.h"

namespace vorn_std_internal {

namespace {
constexpr size_t HostNameRoom = 512;
}

bool getEnvironment(const std::string& name, std::string& value) {
    const char* found = getenv(name.c_str());
    if (found == nullptr) {
        return false;
    }
    value = found;
    return true;
}

bool setEnvironment(const std::string& name, const std::string& value) {
    return setenv(name.c_str(), value.c_str(), 1) == 0;
}

bool getSystemRelease(std::string& system, std::string& release) {
    struct utsname names {};
    if (uname(&names) != 0) {
        return false;
    }
    system = names.sysname;
    release = names.release;
    return true;
}

bool getHostName(std::string& name) {
    char buffer[HostNameRoom] = {};
    if (gethostname(buffer, sizeof buffer - 1) != 0) {
        return false;
    }
    name = buffer;
    return true;
}

}  // namespace vorn_std_internal
