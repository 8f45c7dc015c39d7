#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// UTF-8 for wide strings of 16-bit units, by the library's own rules rather
// than Unicode's: every unit is one character of at most three bytes, and a
// surrogate is encoded on its own, so a pair becomes two three-byte sequences
// and comes back as the same two units. Overlong forms are accepted; four-byte
// and longer sequences are not. A wchar_t counts as its low 16 bits.
//
// Strings are counted: a zero byte or unit is a character like any other.
// Invalid input writes a debug line and gives the empty string; nothing throws.
class VORNSTD_API Utf8Utils {
public:
    Utf8Utils() = delete;

    static std::string unicodeToUtf8(const std::wstring& text);
    static std::wstring utf8ToUnicode(const std::string& bytes);
    static bool isUtf8String(const std::string& bytes);
    // The encoded length plus 1 for a terminator.
    static long getUtf8StringLength(const std::wstring& text);
    // An upper bound of the decoded length, plus 1 for a terminator: a byte
    // and up to five continuation bytes after it count as one character.
    static long getUnicodeStringLength(const std::string& bytes);
};

}  // namespace vorn_std
