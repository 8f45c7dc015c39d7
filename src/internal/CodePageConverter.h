#pragma once

#include <string>

namespace vorn_std_internal {

// Windows code pages on a platform without them: 1252, 1251, 932, 936, 949,
// 950, 65001 (UTF-8), and 0, the system's own, which is the charset of the
// environment's locale, or UTF-8 where that is plain ASCII. Wide text holds
// UTF-16 units; a surrogate pair converts as one character.
//
// As Windows' conversions with a length of -1, both directions stop at the
// first zero. A character the target cannot hold becomes '?', input that does
// not decode too; an unknown code page gives the empty string. Windows 1252's
// five unassigned bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the control
// characters of the same value both ways, as Windows maps them.
//
// Reentrant: every call uses conversion state of its own.
class CodePageConverter {
public:
    CodePageConverter() = delete;

    static std::string fromUnicode(const std::wstring& text, unsigned int codePage);
    static std::wstring toUnicode(const std::string& bytes, unsigned int codePage);
};

}  // namespace vorn_std_internal
