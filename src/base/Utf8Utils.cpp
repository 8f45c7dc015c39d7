#include "vorn_std/base/Utf8Utils.h"

#include <cstdint>

#include "internal/Trace.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/exception/VornException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* DecodeFunction = L"vorn_std::Utf8Utils::internalUtf8ToUnicode";
constexpr const wchar_t* ToUnicodeFunction = L"vorn_std::Utf8Utils::utf8ToUnicode";
constexpr const wchar_t* ToUtf8Function = L"vorn_std::Utf8Utils::unicodeToUtf8";
constexpr const wchar_t* InvalidFormat = L"<%ls> value is not a valid UTF-8 string.";
constexpr const wchar_t* ConvertedLengthName = L"Converted string length";
constexpr int LongestSequence = 3;
constexpr int MostContinuationBytes = 5;
// The bits a lead byte keeps, by the length of its sequence.
constexpr uint8_t LeadBits[LongestSequence + 1] = {0, 0x7F, 0x1F, 0x0F};

bool isContinuation(uint8_t byte) { return (byte & 0xC0) == 0x80; }

// The length a lead byte announces by its high bits: 1 for ASCII, 0 for a
// continuation byte, 2 to 6 for the forms of old UTF-8, more for 0xFE and 0xFF.
int announcedLength(uint8_t lead) {
    if (lead < 0x80) {
        return 1;
    }
    int ones = 0;
    while (ones < 8 && (lead & (0x80 >> ones)) != 0) {
        ++ones;
    }
    return ones == 1 ? 0 : ones;
}

int encodedLength(uint16_t unit) { return unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3; }

uint16_t unitOf(wchar_t c) { return static_cast<uint16_t>(c); }

// glibc's wide printf fails on bytes above 0x7F through %hs: each byte is
// shown as the character of its own value instead.
std::wstring widened(const std::string& bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    }
    return text;
}

long invalid(const std::string& bytes) {
    VORN_DEBUG(DecodeFunction, InvalidFormat, widened(bytes).c_str());
    return -1;
}

// The count of units, appended to target unless it is null; -1 if the bytes
// are not valid by the library's rules.
long internalUtf8ToUnicode(const std::string& bytes, std::wstring* target) {
    long count = 0;
    for (size_t i = 0; i < bytes.size();) {
        const uint8_t lead = static_cast<uint8_t>(bytes[i]);
        const int length = announcedLength(lead);
        if (length == 0 || length > LongestSequence) {
            return invalid(bytes);
        }
        uint32_t unit = lead & LeadBits[length];
        for (int k = 1; k < length; ++k) {
            if (i + k >= bytes.size() || !isContinuation(static_cast<uint8_t>(bytes[i + k]))) {
                return invalid(bytes);
            }
            unit = (unit << 6) | (static_cast<uint8_t>(bytes[i + k]) & 0x3F);
        }
        if (target != nullptr) {
            target->push_back(static_cast<wchar_t>(unit));
        }
        ++count;
        i += static_cast<size_t>(length);
    }
    return count;
}

long internalUnicodeToUtf8(const std::wstring& text, std::string& target) {
    for (const wchar_t c : text) {
        const uint16_t unit = unitOf(c);
        switch (encodedLength(unit)) {
            case 1:
                target += static_cast<char>(unit);
                break;
            case 2:
                target += static_cast<char>(0xC0 | (unit >> 6));
                target += static_cast<char>(0x80 | (unit & 0x3F));
                break;
            default:
                target += static_cast<char>(0xE0 | (unit >> 12));
                target += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
                target += static_cast<char>(0x80 | (unit & 0x3F));
                break;
        }
    }
    return static_cast<long>(target.size());
}

bool isValidLength(long length, const wchar_t* function) {
    try {
        ErrorUtils::isBelowMinimumEx(length, 0, function, ConvertedLengthName);
        return true;
    } catch (const VornException&) {
        return false;
    }
}

}  // namespace

std::string Utf8Utils::unicodeToUtf8(const std::wstring& text) {
    std::string bytes;
    bytes.reserve(static_cast<size_t>(getUtf8StringLength(text)));
    const long length = internalUnicodeToUtf8(text, bytes);
    return isValidLength(length, ToUtf8Function) ? bytes : std::string();
}

std::wstring Utf8Utils::utf8ToUnicode(const std::string& bytes) {
    std::wstring text;
    text.reserve(static_cast<size_t>(getUnicodeStringLength(bytes)));
    const long length = internalUtf8ToUnicode(bytes, &text);
    return isValidLength(length, ToUnicodeFunction) ? text : std::wstring();
}

bool Utf8Utils::isUtf8String(const std::string& bytes) {
    return internalUtf8ToUnicode(bytes, nullptr) >= 0;
}

long Utf8Utils::getUtf8StringLength(const std::wstring& text) {
    long length = 1;
    for (const wchar_t c : text) {
        length += encodedLength(unitOf(c));
    }
    return length;
}

long Utf8Utils::getUnicodeStringLength(const std::string& bytes) {
    long count = 1;
    for (size_t i = 0; i < bytes.size();) {
        ++count;
        ++i;
        for (int k = 0; k < MostContinuationBytes && i < bytes.size() &&
                        isContinuation(static_cast<uint8_t>(bytes[i]));
             ++k) {
            ++i;
        }
    }
    return count;
}

}  // namespace vorn_std
