#include "vorn_std/base/ByteArray.h"

#include <cstdint>
#include <cstring>

#include "vorn_std/base/EncodingUtils.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/exception/VornException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* Windows1252Charset = L"windows-1252";
constexpr const wchar_t* Utf8Charset = L"UTF-8";
constexpr const wchar_t* ConstructorFunction = L"vorn_std::ByteArray::ByteArray";
constexpr const wchar_t* IndexFunction = L"vorn_std::ByteArray::operator[]";
constexpr const wchar_t* LengthName = L"ByteArray length";
constexpr const wchar_t* ValueName = L"ByteArray value";
constexpr const wchar_t* IndexName = L"Column in array";
constexpr unsigned int SystemCodePage = 0;

// new char[0] is a valid, distinct pointer: the block is never null.
std::shared_ptr<char[]> newBlock(long length) {
    return std::shared_ptr<char[]>(new char[static_cast<size_t>(length)]());
}

// A wide character holds one UTF-16 unit whatever the width of wchar_t here:
// the bytes are the 16-bit unit, never the wchar_t's own representation.
std::string toUnits(const std::wstring& text) {
    std::string bytes(text.size() * ByteArray::WCHAR_T_SIZE, '\0');
    for (size_t i = 0; i < text.size(); ++i) {
        const uint16_t unit = static_cast<uint16_t>(text[i]);
        std::memcpy(&bytes[i * ByteArray::WCHAR_T_SIZE], &unit, sizeof unit);
    }
    return bytes;
}

std::wstring fromUnits(const char* bytes, long length) {
    std::wstring text(static_cast<size_t>(length / ByteArray::WCHAR_T_SIZE), L'\0');
    for (size_t i = 0; i < text.size(); ++i) {
        uint16_t unit;
        std::memcpy(&unit, bytes + i * ByteArray::WCHAR_T_SIZE, sizeof unit);
        text[i] = static_cast<wchar_t>(unit);
    }
    return text;
}

}  // namespace

ByteArray::ByteArray() : array(newBlock(0)), length(0), spare(0) {}

ByteArray::ByteArray(long length) : length(0), spare(0) {
    ErrorUtils::isBelowMinimumEx(length, 0, ConstructorFunction, LengthName);
    array = newBlock(length);
    this->length = length;
}

ByteArray::ByteArray(const char* value, long length) : length(0), spare(0) {
    ErrorUtils::isNullEx(value, ConstructorFunction, ValueName);
    ErrorUtils::isBelowMinimumEx(length, 0, ConstructorFunction, LengthName);
    assign(value, length);
}

ByteArray::ByteArray(const std::string& value) : length(0), spare(0) {
    assign(value.data(), static_cast<long>(value.size()));
}

ByteArray::ByteArray(const std::wstring& text, const std::wstring& charset) : length(0), spare(0) {
    std::string bytes;
    if (charset == Windows1252Charset) {
        bytes = EncodingUtils::convertUnicodeToMbcs(text, SystemCodePage);
    } else if (charset == Utf8Charset) {
        bytes = EncodingUtils::convertUnicodeToUtf8(text);
    } else {
        bytes = toUnits(text);
    }
    assign(bytes.data(), static_cast<long>(bytes.size()));
}

ByteArray::ByteArray(const ByteArray& other) : length(0), spare(0) {
    assign(other.array.get(), other.length);
}

ByteArray& ByteArray::operator=(const ByteArray& other) {
    if (this != &other) {
        assign(other.array.get(), other.length);
    }
    return *this;
}

ByteArray::~ByteArray() = default;

void ByteArray::assign(const char* bytes, long count) {
    std::shared_ptr<char[]> block = newBlock(count);
    if (count > 0) {
        std::memcpy(block.get(), bytes, static_cast<size_t>(count));
    }
    array = std::move(block);
    length = count;
}

void ByteArray::clear() {
    array = newBlock(0);
    length = 0;
}

bool ByteArray::isValidIndex(long index) const {
    try {
        ErrorUtils::isBelowMinimumEx(index, 0, IndexFunction, IndexName);
        ErrorUtils::isAboveMaximumEx(index, length - 1, IndexFunction, IndexName);
        return true;
    } catch (const VornException&) {
        return false;
    }
}

char& ByteArray::operator[](long index) {
    if (isValidIndex(index)) {
        return array[index];
    }
    spare = 0;
    return spare;
}

char ByteArray::operator[](long index) const { return isValidIndex(index) ? array[index] : 0; }

bool ByteArray::operator==(const ByteArray& other) const {
    return length == other.length && (length == 0 || std::memcmp(array.get(), other.array.get(),
                                                                 static_cast<size_t>(length)) == 0);
}

std::wstring ByteArray::toWString(const std::wstring& charset) const {
    if (length == 0) {
        return std::wstring();
    }
    const std::string bytes(array.get(), static_cast<size_t>(length));
    if (charset == Windows1252Charset) {
        return EncodingUtils::convertMbcsToUnicode(bytes, SystemCodePage);
    }
    if (charset == Utf8Charset) {
        return EncodingUtils::convertUtf8ToUnicode(bytes);
    }
    return fromUnits(array.get(), length);
}

std::string ByteArray::toString() const {
    return std::string(array.get(), static_cast<size_t>(length));
}

}  // namespace vorn_std
