#include <string.h>

#include "internal/PlatformText.h"
#include "internal/SystemErrorText.h"

namespace vorn_std_internal {

std::wstring systemErrorText(int code) {
    // strerror_r invents "Unknown error N" for a number it does not know.
    if (strerrorname_np(code) == nullptr) {
        return std::wstring();
    }
    char buffer[256];
    const char* text = strerror_r(code, buffer, sizeof buffer);  // GNU form
    return fromPlatformUtf8(text != nullptr ? text : "");
}

}  // namespace vorn_std_internal
