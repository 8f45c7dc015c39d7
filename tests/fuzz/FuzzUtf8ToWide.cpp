// UTF-8 to wide and back: arbitrary bytes, and arbitrary 16-bit units.
#include <cstdint>
#include <string>

#include "FuzzCheck.h"
#include "vorn_std/base/Utf8Utils.h"

using vorn_std::Utf8Utils;

FUZZ_QUIET_DEBUG_OUTPUT()

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const bool valid = Utf8Utils::isUtf8String(bytes);
    const std::wstring wide = Utf8Utils::utf8ToUnicode(bytes);
    FUZZ_CHECK(valid || wide.empty());
    FUZZ_CHECK(static_cast<long>(wide.size()) < Utf8Utils::getUnicodeStringLength(bytes));
    if (valid) {
        // Encoding drops overlong forms; the units stay the same.
        const std::string again = Utf8Utils::unicodeToUtf8(wide);
        FUZZ_CHECK(again.size() <= bytes.size());
        FUZZ_CHECK(Utf8Utils::utf8ToUnicode(again) == wide);
    }

    // Any sequence of units, lone surrogates and zeros included, comes back.
    std::wstring units;
    for (size_t i = 0; i + 1 < size; i += 2) {
        units += static_cast<wchar_t>(data[i] | data[i + 1] << 8);
    }
    const std::string encoded = Utf8Utils::unicodeToUtf8(units);
    FUZZ_CHECK(static_cast<long>(encoded.size()) + 1 == Utf8Utils::getUtf8StringLength(units));
    FUZZ_CHECK(Utf8Utils::isUtf8String(encoded));
    FUZZ_CHECK(Utf8Utils::utf8ToUnicode(encoded) == units);
    return 0;
}
