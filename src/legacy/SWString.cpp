#include "vorn_std/legacy/SWString.h"

#include <climits>
#include <cwchar>
#include <cwctype>

#include "vorn_std/base/EncodingUtils.h"
#include "vorn_std/base/StringUtils.h"

namespace VornStd {

using vorn_std::EncodingUtils;

namespace {

constexpr unsigned int SystemCodePage = 0;
constexpr int DecimalBase = 10;

std::string bytesOf(const char* text, long length) {
    if (text == nullptr) {
        return std::string();
    }
    return length < 0 ? std::string(text) : std::string(text, static_cast<size_t>(length));
}

std::wstring decode(const std::string& bytes, CodeType type, unsigned int codePage) {
    switch (type) {
        case UTF8_TEXT:
            return EncodingUtils::convertUtf8ToUnicode(bytes);
        case BASE64_TEXT:
            return EncodingUtils::convertMbcsToUnicode(EncodingUtils::convertBase64ToMbcs(bytes),
                                                       codePage);
        default:
            return EncodingUtils::convertMbcsToUnicode(bytes, codePage);
    }
}

std::wstring fromSystem(const char* text, unsigned int codePage = SystemCodePage) {
    return decode(bytesOf(text, -1), MBCS_TEXT, codePage);
}

// wcstol saturates at the range of long; _wtoi saturated at that of int.
long parseLong(const std::wstring& text) { return std::wcstol(text.c_str(), nullptr, DecimalBase); }

}  // namespace

SWString::SWString(const std::wstring& text) : std::wstring(text) {}

SWString::SWString(std::wstring&& text) : std::wstring(std::move(text)) {}

SWString::SWString(const char* text, unsigned int codePage)
    : std::wstring(fromSystem(text, codePage)) {}

SWString::SWString(const char* text, CodeType type, unsigned int codePage)
    : std::wstring(decode(bytesOf(text, -1), type, codePage)) {}

SWString::SWString(const char* text, long length, CodeType type, unsigned int codePage)
    : std::wstring(decode(bytesOf(text, length), type, codePage)) {}

SWString::~SWString() = default;

SWString& SWString::operator=(const char* text) {
    std::wstring::operator=(fromSystem(text));
    return *this;
}

SWString& SWString::operator=(std::initializer_list<wchar_t> characters) {
    std::wstring::operator=(characters);
    return *this;
}

SWString& SWString::operator+=(const char* text) {
    std::wstring::operator+=(fromSystem(text));
    return *this;
}

SWString& SWString::operator+=(std::initializer_list<wchar_t> characters) {
    std::wstring::operator+=(characters);
    return *this;
}

SWString& SWString::assign(const char* text, unsigned int codePage) {
    std::wstring::assign(fromSystem(text, codePage));
    return *this;
}

SWString& SWString::assign(std::initializer_list<wchar_t> characters) {
    std::wstring::assign(characters);
    return *this;
}

SWString& SWString::append(const char* text, unsigned int codePage) {
    std::wstring::append(fromSystem(text, codePage));
    return *this;
}

SWString& SWString::append(std::initializer_list<wchar_t> characters) {
    std::wstring::append(characters);
    return *this;
}

SWString& SWString::insert(size_type index, const char* text, unsigned int codePage) {
    std::wstring::insert(index, fromSystem(text, codePage));
    return *this;
}

SWString::iterator SWString::insert(const_iterator position,
                                    std::initializer_list<wchar_t> characters) {
    return std::wstring::insert(position, characters);
}

SWString& SWString::replace(size_type position, size_type count, const char* text,
                            unsigned int codePage) {
    std::wstring::replace(position, count, fromSystem(text, codePage));
    return *this;
}

SWString& SWString::replace(const_iterator first, const_iterator last,
                            std::initializer_list<wchar_t> characters) {
    std::wstring::replace(first, last, characters);
    return *this;
}

const char* SWString::mb_str(unsigned int codePage) const {
    narrow = EncodingUtils::convertUnicodeToMbcs(*this, codePage);
    return narrow.c_str();
}

const char* SWString::utf8_str() const {
    narrow = EncodingUtils::convertUnicodeToUtf8(*this);
    return narrow.c_str();
}

const char* SWString::base64_str() const {
    narrow = EncodingUtils::convertMbcsToBase64(
        EncodingUtils::convertUnicodeToMbcs(*this, SystemCodePage));
    return narrow.c_str();
}

const wchar_t* SWString::t_str() const { return c_str(); }

bool SWString::store(std::wstring decoded, size_t inputLength) {
    if (decoded.empty() && inputLength > 0) {
        return false;
    }
    std::wstring::operator=(std::move(decoded));
    return true;
}

bool SWString::SetUTF8(const char* text) { return SetUTF8(text, -1); }

bool SWString::SetUTF8(const char* text, long length) {
    const std::string bytes = bytesOf(text, length);
    return store(decode(bytes, UTF8_TEXT, SystemCodePage), bytes.size());
}

bool SWString::SetBase64(const char* text) { return SetBase64(text, -1); }

bool SWString::SetBase64(const char* text, long length) {
    const std::string bytes = bytesOf(text, length);
    return store(decode(bytes, BASE64_TEXT, SystemCodePage), bytes.size());
}

SWString& SWString::ToUpper() {
    for (wchar_t& c : *this) {
        c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    }
    return *this;
}

SWString& SWString::ToLower() {
    for (wchar_t& c : *this) {
        c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    }
    return *this;
}

SWString& SWString::TrimString() {
    vorn_std::StringUtils::trimString(*this);
    return *this;
}

int SWString::ToInt() const {
    const long value = parseLong(*this);
    if (value > INT_MAX) {
        return INT_MAX;
    }
    return value < INT_MIN ? INT_MIN : static_cast<int>(value);
}

long SWString::ToLong() const { return parseLong(*this); }

bool SWString::operator==(const char* text) const {
    return static_cast<const std::wstring&>(*this) == fromSystem(text);
}

bool SWString::operator!=(const char* text) const { return !(*this == text); }

bool SWString::operator<(const SWString& other) const {
    return static_cast<const std::wstring&>(*this) < static_cast<const std::wstring&>(other);
}

SWString operator+(const SWString& left, const SWString& right) {
    return SWString(static_cast<const std::wstring&>(left) + right);
}

SWString operator+(const SWString& left, std::wstring right) {
    right.insert(0, left);
    return SWString(std::move(right));
}

SWString operator+(std::wstring left, const SWString& right) {
    left.append(right);
    return SWString(std::move(left));
}

SWString operator+(const SWString& left, const wchar_t* right) {
    return SWString(static_cast<const std::wstring&>(left) + right);
}

SWString operator+(const wchar_t* left, const SWString& right) {
    return SWString(left + static_cast<const std::wstring&>(right));
}

SWString operator+(const SWString& left, wchar_t right) {
    return SWString(static_cast<const std::wstring&>(left) + right);
}

SWString operator+(wchar_t left, const SWString& right) {
    return SWString(left + static_cast<const std::wstring&>(right));
}

SWString operator+(const SWString& left, const char* right) { return left + SWString(right); }

SWString operator+(const char* left, const SWString& right) { return SWString(left) + right; }

}  // namespace VornStd
