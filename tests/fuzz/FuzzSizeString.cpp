// Size strings: arbitrary text and default values, where a double out of the
// range of a 64-bit integer must not reach a conversion.
#include <cstdint>
#include <cstring>
#include <string>

#include "FuzzCheck.h"
#include "internal/PlatformText.h"
#include "vorn_std/base/StringUtils.h"

using vorn_std::StringUtils;

FUZZ_QUIET_DEBUG_OUTPUT()

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    int32_t defaultValue = 0;
    if (size >= sizeof defaultValue) {
        std::memcpy(&defaultValue, data, sizeof defaultValue);
        data += sizeof defaultValue;
        size -= sizeof defaultValue;
    }
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::wstring text = vorn_std_internal::fromPlatformUtf8(bytes);
    const int result = StringUtils::convertSizeString(text, defaultValue);
    // Surrounding white space never changes the answer.
    FUZZ_CHECK(StringUtils::convertSizeString(L" \t" + text + L"\n ", defaultValue) == result);
    if (text.find_first_not_of(L" \t\n\v\f\r") == std::wstring::npos) {
        FUZZ_CHECK(result == defaultValue);
    }
    return 0;
}
