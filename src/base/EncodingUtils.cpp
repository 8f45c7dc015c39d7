#include "vorn_std/base/EncodingUtils.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <map>
#include <type_traits>

#include "internal/CodePageConverter.h"
#include "internal/Trace.h"
#include "vorn_std/base/Base64Utils.h"
#include "vorn_std/base/ByteArray.h"
#include "vorn_std/base/ByteBuffer.h"
#include "vorn_std/base/StringUtils.h"
#include "vorn_std/base/Utf8Utils.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* DelimitedFunction = L"vorn_std::EncodingUtils::delimStringToByteArray";
constexpr const wchar_t* InvalidDelimitedFormat = L"<%ls> string is invalid.";
constexpr const wchar_t* ValidCharacterSets[] = {L"ISO-10646-UCS-2", L"UTF-8", L"windows-1252"};
constexpr const wchar_t* HexDigits = L"0123456789ABCDEF";
constexpr wchar_t Delimiter = L'-';
constexpr const wchar_t* UnsignedLongLongFormat = L"%llu";
// A number of the delimited form is read as a 32-bit atol reads it.
constexpr long LargestNumber = INT32_MAX;

struct LanguageCodePage {
    const wchar_t* language;
    unsigned int codePage;
};

constexpr LanguageCodePage LanguageCodePages[] = {
    {L"English", 1252},
    {L"French", 1252},
    {L"German", 1252},
    {L"Spanish", 1252},
    {L"Italian", 1252},
    {L"Chinese", 936},
    {L"Japanese", 932},
    {L"Korean", 949},
    {L"Brazilian Portuguese", 1252},
    {L"Dutch", 1252},
    {L"Danish", 1252},
    {L"Swedish", 1252},
    {L"Traditional Chinese", 950},
    {L"Russian", 1251},
};

std::atomic<bool> languageTableLoaded{false};

using LanguageTable = std::map<std::wstring, unsigned int>;

const LanguageTable* buildLanguageTable() {
    auto* table = new LanguageTable();
    for (const LanguageCodePage& entry : LanguageCodePages) {
        table->emplace(entry.language, entry.codePage);
    }
    languageTableLoaded.store(true, std::memory_order_relaxed);
    return table;
}

const LanguageTable& languageTable() {
    // Built once by whichever thread comes first; never destroyed, so that a
    // statement made while the library unloads may still look a name up.
    static const LanguageTable* const table = buildLanguageTable();
    return *table;
}

template <typename Char>
wchar_t widened(Char c) {
    return static_cast<wchar_t>(static_cast<std::make_unsigned_t<Char>>(c));
}

template <typename Char>
std::wstring widened(const std::basic_string<Char>& text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (const Char c : text) {
        wide += widened(c);
    }
    return wide;
}

int hexValue(wchar_t c) {
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    return c >= L'A' && c <= L'F' ? c - L'A' + 10 : 0;
}

template <typename Char>
bool decodeHex(const std::basic_string<Char>& text, std::string& bytes) {
    if (text.empty() || text.size() % 2 != 0) {
        return false;
    }
    bytes.reserve(text.size() / 2);
    for (size_t i = 0; i < text.size(); i += 2) {
        bytes +=
            static_cast<char>(hexValue(widened(text[i])) << 4 | hexValue(widened(text[i + 1])));
    }
    return true;
}

// False only for the empty text. Invalid text leaves bytes empty.
template <typename Char>
bool decodeDelimited(const std::basic_string<Char>& text, std::string& bytes) {
    if (text.empty()) {
        return false;
    }
    long number = 0;
    bool inNumber = false;
    for (const Char c : text) {
        const wchar_t w = widened(c);
        if (w == Delimiter) {
            if (inNumber) {
                bytes += static_cast<char>(number & 0xFF);
            }
            number = 0;
            inNumber = false;
        } else if (w >= L'0' && w <= L'9') {
            number = std::min(number * 10 + (w - L'0'), LargestNumber);
            inNumber = true;
        } else {
            VORN_DEBUG(DelimitedFunction, InvalidDelimitedFormat, widened(text).c_str());
            bytes.clear();
            return true;
        }
    }
    if (inNumber) {
        bytes += static_cast<char>(number & 0xFF);
    }
    return true;
}

std::shared_ptr<ByteArray> toByteArray(const std::string& bytes) {
    return std::make_shared<ByteArray>(bytes);
}

std::shared_ptr<ByteBuffer> toReadableBuffer(const std::string& bytes) {
    std::shared_ptr<ByteBuffer> buffer = ByteBuffer::allocate(static_cast<long>(bytes.size()));
    buffer->put(bytes.data(), static_cast<long>(bytes.size()));
    buffer->flip();
    return buffer;
}

void appendHex(std::wstring& text, unsigned char byte) {
    text += HexDigits[byte >> 4];
    text += HexDigits[byte & 0x0F];
}

void appendDelimited(std::wstring& text, unsigned char byte) {
    if (!text.empty()) {
        text += Delimiter;
    }
    text += std::to_wstring(byte);
}

template <typename Append>
std::wstring format(const ByteArray& bytes, Append append) {
    std::wstring text;
    const char* data = bytes.getArray().get();
    for (long i = 0; i < bytes.getLength(); ++i) {
        append(text, static_cast<unsigned char>(data[i]));
    }
    return text;
}

template <typename Append>
std::wstring format(ByteBuffer& bytes, Append append) {
    std::wstring text;
    bytes.setMark();
    while (bytes.hasRemaining()) {
        append(text, static_cast<unsigned char>(bytes.get()));
    }
    bytes.reset();
    return text;
}

}  // namespace

std::string EncodingUtils::convertUnicodeToMbcs(const std::wstring& text, unsigned int codePage) {
    return vorn_std_internal::CodePageConverter::fromUnicode(text, codePage);
}

std::wstring EncodingUtils::convertMbcsToUnicode(const std::string& bytes, unsigned int codePage) {
    return vorn_std_internal::CodePageConverter::toUnicode(bytes, codePage);
}

std::string EncodingUtils::convertUnicodeToUtf8(const std::wstring& text) {
    return Utf8Utils::unicodeToUtf8(text);
}

std::wstring EncodingUtils::convertUtf8ToUnicode(const std::string& bytes) {
    return Utf8Utils::utf8ToUnicode(bytes);
}

std::string EncodingUtils::convertMbcsToBase64(const std::string& bytes) {
    return Base64Utils::mbcsToBase64(bytes);
}

std::string EncodingUtils::convertBase64ToMbcs(const std::string& text) {
    return Base64Utils::base64ToMbcs(text);
}

bool EncodingUtils::isValidCharacterSet(const std::wstring& name) {
    for (const wchar_t* valid : ValidCharacterSets) {
        if (name == valid) {
            return true;
        }
    }
    return false;
}

unsigned int EncodingUtils::languageToCodePage(const std::wstring& language) {
    const LanguageTable& table = languageTable();
    const auto found = table.find(language);
    return found != table.end() ? found->second : 0;
}

bool EncodingUtils::isLoaded() { return languageTableLoaded.load(std::memory_order_relaxed); }

std::wstring EncodingUtils::toHexString(const ByteArray& bytes) { return format(bytes, appendHex); }

std::wstring EncodingUtils::toHexString(ByteBuffer& bytes) { return format(bytes, appendHex); }

std::shared_ptr<ByteArray> EncodingUtils::hexStringToByteArray(const std::wstring& text) {
    std::string bytes;
    return decodeHex(text, bytes) ? toByteArray(bytes) : nullptr;
}

std::shared_ptr<ByteArray> EncodingUtils::hexStringToByteArray(const std::string& text) {
    std::string bytes;
    return decodeHex(text, bytes) ? toByteArray(bytes) : nullptr;
}

std::shared_ptr<ByteBuffer> EncodingUtils::hexStringToByteBuffer(const std::wstring& text) {
    std::string bytes;
    return decodeHex(text, bytes) ? toReadableBuffer(bytes) : nullptr;
}

std::shared_ptr<ByteBuffer> EncodingUtils::hexStringToByteBuffer(const std::string& text) {
    std::string bytes;
    return decodeHex(text, bytes) ? toReadableBuffer(bytes) : nullptr;
}

std::wstring EncodingUtils::toDelimString(const ByteArray& bytes) {
    return format(bytes, appendDelimited);
}

std::wstring EncodingUtils::toDelimString(ByteBuffer& bytes) {
    return format(bytes, appendDelimited);
}

std::shared_ptr<ByteArray> EncodingUtils::delimStringToByteArray(const std::wstring& text) {
    std::string bytes;
    return decodeDelimited(text, bytes) ? toByteArray(bytes) : nullptr;
}

std::shared_ptr<ByteArray> EncodingUtils::delimStringToByteArray(const std::string& text) {
    std::string bytes;
    return decodeDelimited(text, bytes) ? toByteArray(bytes) : nullptr;
}

std::shared_ptr<ByteBuffer> EncodingUtils::delimStringToByteBuffer(const std::wstring& text) {
    std::string bytes;
    return decodeDelimited(text, bytes) ? toReadableBuffer(bytes) : nullptr;
}

std::shared_ptr<ByteBuffer> EncodingUtils::delimStringToByteBuffer(const std::string& text) {
    std::string bytes;
    return decodeDelimited(text, bytes) ? toReadableBuffer(bytes) : nullptr;
}

std::wstring EncodingUtils::encodeString(const ByteArray& bytes, const std::wstring& encoding) {
    return encoding == DelimiteredEncoding ? toDelimString(bytes) : toHexString(bytes);
}

std::shared_ptr<ByteArray> EncodingUtils::decodeString(const std::wstring& text,
                                                       const std::wstring& encoding) {
    return encoding == DelimiteredEncoding ? delimStringToByteArray(text)
                                           : hexStringToByteArray(text);
}

std::wstring EncodingUtils::toStringFromLongLong(long long value) {
    std::wstring text;
    StringUtils::sprintfStringAppend(text, UnsignedLongLongFormat,
                                     static_cast<unsigned long long>(value));
    return text;
}

}  // namespace vorn_std
