// Code page conversion both ways. The first byte picks the code page; the rest
// is converted as bytes, and again as 16-bit units.
#include <cstdint>
#include <string>

#include "FuzzCheck.h"
#include "vorn_std/base/EncodingUtils.h"

using vorn_std::EncodingUtils;

FUZZ_QUIET_DEBUG_OUTPUT()

namespace {

constexpr unsigned int CodePages[] = {0, 1252, 1251, 932, 936, 949, 950, 65001, 12345};

bool isSurrogate(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

// What UTF-8 must give back: the units up to the first zero, a lone surrogate
// as '?'.
std::wstring expectedUtf8RoundTrip(const std::wstring& units) {
    std::wstring expected;
    for (size_t i = 0; i < units.size() && units[i] != L'\0'; ++i) {
        const wchar_t unit = units[i];
        if (unit >= 0xD800 && unit <= 0xDBFF && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
            units[i + 1] <= 0xDFFF) {
            expected += unit;
            expected += units[++i];
        } else {
            expected += isSurrogate(unit) ? L'?' : unit;
        }
    }
    return expected;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    const unsigned int codePage = CodePages[data[0] % (sizeof CodePages / sizeof CodePages[0])];
    const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);

    const std::wstring wide = EncodingUtils::convertMbcsToUnicode(bytes, codePage);
    for (const wchar_t unit : wide) {
        FUZZ_CHECK(unit != L'\0' && unit >= 0 && unit <= 0xFFFF);
    }
    const std::string back = EncodingUtils::convertUnicodeToMbcs(wide, codePage);
    if (codePage == 1252) {
        // Every byte but zero has a character in Windows 1252.
        FUZZ_CHECK(back == bytes.substr(0, bytes.find('\0')));
    }

    std::wstring units;
    for (size_t i = 1; i + 1 < size; i += 2) {
        units += static_cast<wchar_t>(data[i] | data[i + 1] << 8);
    }
    const std::string encoded = EncodingUtils::convertUnicodeToMbcs(units, codePage);
    FUZZ_CHECK(encoded.find('\0') == std::string::npos);
    if (codePage == 65001) {
        FUZZ_CHECK(EncodingUtils::convertMbcsToUnicode(encoded, codePage) ==
                   expectedUtf8RoundTrip(units));
    }
    return 0;
}
