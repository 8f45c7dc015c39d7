#pragma once

#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>

#include "vorn_std/base/Export.h"

namespace VornStd {

// How the narrow constructors of SWString read their text. Any value other
// than the two named ones means multi-byte text in the given code page.
enum CodeType {
    MBCS_TEXT = 0,
    UTF8_TEXT = 3,
    BASE64_TEXT = 4,
};

// The older wide string: a std::wstring (one UTF-16 unit per wchar_t) with
// narrow, UTF-8 and Base64 views. Every member of the wide string is there,
// and its assign, append, insert, replace, = and += answer with this class;
// the forms that take a "const char*" (and a code page, 0 for the system's
// own) convert from multi-byte text.
//
// mb_str, utf8_str and base64_str return a pointer into the object that
// stays valid until the next of these calls on it, or until it is changed or
// destroyed. An SWString is not shared between threads; conversions only
// throw what the wide string itself throws.
class VORNSTD_API SWString : public std::wstring {
    // The wide string's own forms answer with this object where they answer
    // with the string, and with what they answer otherwise.
    SWString& self(std::wstring&) { return *this; }
    static iterator self(iterator position) { return position; }
    // Assigning one of this family must stay the copy of this family (a path
    // keeps its separator), not the wide string's.
    template <typename Argument>
    using NotOfThisFamily =
        std::enable_if_t<!std::is_base_of<SWString, std::decay_t<Argument>>::value>;

public:
    using std::wstring::basic_string;

    SWString() = default;
    SWString(const SWString&) = default;
    SWString(SWString&&) = default;
    SWString(const std::wstring& text);
    SWString(std::wstring&& text);
    // A null text is the empty string.
    SWString(const char* text, unsigned int codePage = 0);
    SWString(const char* text, CodeType type, unsigned int codePage = 0);
    // A negative length reads up to the first zero byte.
    SWString(const char* text, long length, CodeType type, unsigned int codePage = 0);
    virtual ~SWString();

    SWString& operator=(const SWString&) = default;
    SWString& operator=(SWString&&) = default;
    SWString& operator=(const char* text);
    template <typename Argument, typename = NotOfThisFamily<Argument>>
    auto operator=(Argument&& argument)
        -> decltype(std::declval<std::wstring&>() = std::forward<Argument>(argument),
                    std::declval<SWString&>()) {
        std::wstring::operator=(std::forward<Argument>(argument));
        return *this;
    }
    SWString& operator=(std::initializer_list<wchar_t> characters);

    SWString& operator+=(const char* text);
    template <typename Argument>
    auto operator+=(Argument&& argument)
        -> decltype(std::declval<std::wstring&>() += std::forward<Argument>(argument),
                    std::declval<SWString&>()) {
        std::wstring::operator+=(std::forward<Argument>(argument));
        return *this;
    }
    SWString& operator+=(std::initializer_list<wchar_t> characters);

    SWString& assign(const char* text, unsigned int codePage = 0);
    template <typename... Arguments>
    auto assign(Arguments&&... arguments)
        -> decltype(std::declval<std::wstring&>().assign(std::forward<Arguments>(arguments)...),
                    std::declval<SWString&>()) {
        std::wstring::assign(std::forward<Arguments>(arguments)...);
        return *this;
    }
    SWString& assign(std::initializer_list<wchar_t> characters);

    SWString& append(const char* text, unsigned int codePage = 0);
    template <typename... Arguments>
    auto append(Arguments&&... arguments)
        -> decltype(std::declval<std::wstring&>().append(std::forward<Arguments>(arguments)...),
                    std::declval<SWString&>()) {
        std::wstring::append(std::forward<Arguments>(arguments)...);
        return *this;
    }
    SWString& append(std::initializer_list<wchar_t> characters);

    SWString& insert(size_type index, const char* text, unsigned int codePage = 0);
    template <typename... Arguments>
    auto insert(Arguments&&... arguments) -> decltype(self(
        std::declval<std::wstring&>().insert(std::forward<Arguments>(arguments)...))) {
        return self(std::wstring::insert(std::forward<Arguments>(arguments)...));
    }
    iterator insert(const_iterator position, std::initializer_list<wchar_t> characters);

    SWString& replace(size_type position, size_type count, const char* text,
                      unsigned int codePage = 0);
    template <typename... Arguments>
    auto replace(Arguments&&... arguments)
        -> decltype(std::declval<std::wstring&>().replace(std::forward<Arguments>(arguments)...),
                    std::declval<SWString&>()) {
        std::wstring::replace(std::forward<Arguments>(arguments)...);
        return *this;
    }
    SWString& replace(const_iterator first, const_iterator last,
                      std::initializer_list<wchar_t> characters);

    // The text in the code page, through EncodingUtils::convertUnicodeToMbcs.
    const char* mb_str(unsigned int codePage = 0) const;
    const char* utf8_str() const;
    // The system's multi-byte text (code page 0) in Base64.
    const char* base64_str() const;
    const wchar_t* t_str() const;

    // Store the decoded text and answer true; answer false and keep the old
    // text if a text that is not empty decodes to nothing. A null text is
    // the empty text. SetBase64 goes through the system's code page.
    bool SetUTF8(const char* text);
    bool SetUTF8(const char* text, long length);
    bool SetBase64(const char* text);
    bool SetBase64(const char* text, long length);

    // Character by character, by the C library's current locale.
    SWString& ToUpper();
    SWString& ToLower();
    // White space on the right only.
    SWString& TrimString();
    // Leading white space and a sign are allowed; the number ends at the
    // first other character. Values beyond the type saturate.
    int ToInt() const;
    long ToLong() const;

    // The narrow text is read in the system's code page.
    bool operator==(const char* text) const;
    bool operator!=(const char* text) const;
    bool operator<(const SWString& other) const;

private:
    bool store(std::wstring decoded, size_t inputLength);

    mutable std::string narrow;
};

// Concatenation answers with an SWString whichever side it is on. A wide
// string is taken by value, so that a temporary one does not make the
// standard library's forms for temporaries equally good.
VORNSTD_API SWString operator+(const SWString& left, const SWString& right);
VORNSTD_API SWString operator+(const SWString& left, std::wstring right);
VORNSTD_API SWString operator+(std::wstring left, const SWString& right);
VORNSTD_API SWString operator+(const SWString& left, const wchar_t* right);
VORNSTD_API SWString operator+(const wchar_t* left, const SWString& right);
VORNSTD_API SWString operator+(const SWString& left, wchar_t right);
VORNSTD_API SWString operator+(wchar_t left, const SWString& right);
VORNSTD_API SWString operator+(const SWString& left, const char* right);
VORNSTD_API SWString operator+(const char* left, const SWString& right);

}  // namespace VornStd
