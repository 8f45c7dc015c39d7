#include "vorn_std/base/Base64Utils.h"

#include <cstdint>
#include <cstring>
#include <cwchar>
#include <vector>

#include "internal/Trace.h"
#include "vorn_std/base/ByteArray.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/exception/VornException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* DecodeFunction = L"vorn_std::Base64Utils::internalBase64ToMbcs";
constexpr const wchar_t* EncodeFunction = L"vorn_std::Base64Utils::internalMbcsToBase64";
constexpr const wchar_t* ToMbcsFunction = L"vorn_std::Base64Utils::base64ToMbcs";
constexpr const wchar_t* ToByteArrayFunction = L"vorn_std::Base64Utils::base64ToByteArray";
constexpr const wchar_t* ToBase64Function = L"vorn_std::Base64Utils::mbcsToBase64";
constexpr const wchar_t* ArrayToBase64Function = L"vorn_std::Base64Utils::byteArrayToBase64";

constexpr const wchar_t* NotBase64CharacterFormat = L"<%C> is not a Base64 character.";
constexpr const wchar_t* NoMbcsSpaceText = L"Insufficient space to hold MBCS string.";
constexpr const wchar_t* NoBase64SpaceText = L"Insufficient space to hold Base64 string.";
constexpr const wchar_t* PartialBytesText = L"Partial bytes after string.";
constexpr const wchar_t* MissingPaddingText = L"Missing trailing padding.";
constexpr const wchar_t* ExtraCharactersText = L"Extra characters after padding.";
constexpr const wchar_t* InvalidPaddingText = L"Invalid characters after padding.";
constexpr const wchar_t* ConvertedLengthName = L"Converted string length";

constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char Padding = '=';
constexpr int GroupCharacters = 4;
constexpr int GroupBytes = 3;

// isspace of the C locale below 0x80, whatever locale the host has set.
bool isWhiteSpace(unsigned char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

int sextetOf(unsigned char c) {
    if (c >= 'A' && c <= 'Z') {
        return c - 'A';
    }
    if (c >= 'a' && c <= 'z') {
        return c - 'a' + 26;
    }
    if (c >= '0' && c <= '9') {
        return c - '0' + 52;
    }
    return c == '+' ? 62 : c == '/' ? 63 : -1;
}

const unsigned char* skipWhiteSpace(const unsigned char* p) {
    while (isWhiteSpace(*p)) {
        ++p;
    }
    return p;
}

long fail(const wchar_t* text) {
    VORN_DEBUG(DecodeFunction, L"%ls", text);
    return -1;
}

// Decodes zero-terminated text into target (capacity bytes), or only checks
// it when target is null. The count of bytes, or -1.
long internalBase64ToMbcs(const char* text, char* target, long capacity) {
    const unsigned char* p = reinterpret_cast<const unsigned char*>(text);
    long written = 0;
    int inGroup = 0;
    uint32_t bits = 0;
    for (; *p != '\0' && *p != Padding; ++p) {
        if (isWhiteSpace(*p)) {
            continue;
        }
        const int sextet = sextetOf(*p);
        if (sextet < 0) {
            // %C takes the byte as a character of its own value, never sign-extended.
            VORN_DEBUG(DecodeFunction, NotBase64CharacterFormat, static_cast<wint_t>(*p));
            return -1;
        }
        bits = (bits << 6) | static_cast<uint32_t>(sextet);
        if (++inGroup == GroupCharacters) {
            if (target != nullptr) {
                if (written + GroupBytes > capacity) {
                    return fail(NoMbcsSpaceText);
                }
                target[written] = static_cast<char>(bits >> 16);
                target[written + 1] = static_cast<char>(bits >> 8);
                target[written + 2] = static_cast<char>(bits);
            }
            written += GroupBytes;
            inGroup = 0;
            bits = 0;
        }
    }
    if (*p != Padding) {
        return inGroup == 0 ? written : fail(PartialBytesText);
    }
    if (inGroup < 2) {
        return -1;
    }
    ++p;
    if (inGroup == 2) {
        p = skipWhiteSpace(p);
        if (*p != Padding) {
            return fail(MissingPaddingText);
        }
        ++p;
    }
    if (*skipWhiteSpace(p) != '\0') {
        return fail(ExtraCharactersText);
    }
    // Two characters carry one byte and 4 unused bits, three carry two bytes and 2.
    const int lastBytes = inGroup - 1;
    const int unusedBits = inGroup == 2 ? 4 : 2;
    if (target != nullptr) {
        if ((bits & ((1u << unusedBits) - 1)) != 0) {
            return fail(InvalidPaddingText);
        }
        if (written + lastBytes > capacity) {
            return fail(NoMbcsSpaceText);
        }
        bits >>= unusedBits;
        for (int k = lastBytes - 1; k >= 0; --k) {
            target[written + k] = static_cast<char>(bits);
            bits >>= 8;
        }
    }
    return written + lastBytes;
}

// Encodes size bytes into target, zero-terminated. The count of characters, or -1.
long internalMbcsToBase64(const unsigned char* bytes, long size, char* target, long capacity) {
    const long needed = (size + GroupBytes - 1) / GroupBytes * GroupCharacters;
    if (needed + 1 > capacity) {
        VORN_DEBUG(EncodeFunction, L"%ls", NoBase64SpaceText);
        return -1;
    }
    long written = 0;
    for (long i = 0; i < size; i += GroupBytes) {
        const long left = size - i;
        uint32_t bits = static_cast<uint32_t>(bytes[i]) << 16;
        if (left > 1) {
            bits |= static_cast<uint32_t>(bytes[i + 1]) << 8;
        }
        if (left > 2) {
            bits |= bytes[i + 2];
        }
        target[written++] = Alphabet[(bits >> 18) & 0x3F];
        target[written++] = Alphabet[(bits >> 12) & 0x3F];
        target[written++] = left > 1 ? Alphabet[(bits >> 6) & 0x3F] : Padding;
        target[written++] = left > 2 ? Alphabet[bits & 0x3F] : Padding;
    }
    target[written] = '\0';
    return written;
}

// Upper bounds of the converted sizes, terminator included.
long base64Length(long size) { return size / GroupBytes * GroupCharacters + 5; }
long mbcsLength(long size) { return size / GroupCharacters * GroupBytes + 1; }

bool isValidLength(long length, const wchar_t* function) {
    try {
        ErrorUtils::isBelowMinimumEx(length, 0, function, ConvertedLengthName);
        return true;
    } catch (const VornException&) {
        return false;
    }
}

std::string encode(const char* bytes, long size, const wchar_t* function) {
    std::vector<char> target(static_cast<size_t>(base64Length(size)), '\0');
    const long length = internalMbcsToBase64(reinterpret_cast<const unsigned char*>(bytes), size,
                                             target.data(), static_cast<long>(target.size()));
    return isValidLength(length, function) ? std::string(target.data(), static_cast<size_t>(length))
                                           : std::string();
}

// The decoded bytes, or false.
bool decode(const std::string& text, const wchar_t* function, std::vector<char>& bytes,
            long& length) {
    bytes.assign(static_cast<size_t>(mbcsLength(static_cast<long>(text.size()))), '\0');
    length = internalBase64ToMbcs(text.c_str(), bytes.data(), static_cast<long>(bytes.size()));
    return isValidLength(length, function);
}

}  // namespace

std::string Base64Utils::mbcsToBase64(const std::string& bytes) {
    return encode(bytes.c_str(), static_cast<long>(std::strlen(bytes.c_str())), ToBase64Function);
}

std::string Base64Utils::byteArrayToBase64(const ByteArray& bytes) {
    return encode(bytes.getArray().get(), bytes.getLength(), ArrayToBase64Function);
}

std::string Base64Utils::base64ToMbcs(const std::string& text) {
    std::vector<char> bytes;
    long length = 0;
    return decode(text, ToMbcsFunction, bytes, length)
               ? std::string(bytes.data(), static_cast<size_t>(length))
               : std::string();
}

std::shared_ptr<ByteArray> Base64Utils::base64ToByteArray(const std::string& text) {
    std::vector<char> bytes;
    long length = 0;
    return decode(text, ToByteArrayFunction, bytes, length)
               ? std::make_shared<ByteArray>(bytes.data(), length)
               : nullptr;
}

bool Base64Utils::isBase64String(const std::string& text) {
    return internalBase64ToMbcs(text.c_str(), nullptr, 0) >= 0;
}

long Base64Utils::getBase64StringLength(const std::string& bytes) {
    return base64Length(static_cast<long>(bytes.size()));
}

long Base64Utils::getBase64StringLength(const ByteArray& bytes) {
    return base64Length(bytes.getLength());
}

long Base64Utils::getMbcsStringLength(const std::string& text) {
    return mbcsLength(static_cast<long>(text.size()));
}

}  // namespace vorn_std
