#include "internal/Trace.h"

#include <cstring>

#include "internal/PlatformText.h"

namespace vorn_std_internal {

std::wstring sourceFileName(const char* path) {
    if (path == nullptr) {
        return std::wstring();
    }
    const char* slash = std::strrchr(path, '/');
    const char* backslash = std::strrchr(path, '\\');
    const char* separator = backslash != nullptr && (slash == nullptr || backslash > slash)
                                ? backslash
                                : slash;
    return fromPlatformUtf8(separator != nullptr ? separator + 1 : path);
}

}  // namespace vorn_std_internal
