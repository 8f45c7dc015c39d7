#pragma once

#include <cstdarg>
#include <string>
#include <vector>

#include "vorn_std/base/Export.h"

namespace vorn_std {

class ByteArray;

// Static text helpers. All are reentrant. Only the formatting members throw;
// the others answer with a default value.
class VORNSTD_API StringUtils {
public:
    StringUtils() = delete;

    // Appends printf-style wide formatting to out ("%ls" for a wide string).
    // A null format: VornIllegalArgumentException "Format string cannot be null!".
    // A failed conversion: VornIllegalArgumentException "Unable to format string: " + format.
    // No memory: VornOutOfResourcesException.
    static void sprintfStringAppend(std::wstring& out, const wchar_t* format, ...);
    static void sprintfStringAppendVA(std::wstring& out, va_list args, const wchar_t* format);

    // Case-sensitive; the empty prefix is a prefix of everything.
    static bool hasPrefix(const std::wstring& text, const std::wstring& prefix);
    // What follows prefix; the empty string if text does not start with it.
    static std::wstring trimPrefix(const std::wstring& text, const std::wstring& prefix);
    // Removes white space on the right of text, in place, and returns a copy.
    // The left side is left alone.
    static std::wstring trimString(std::wstring& text);
    // Only "0123456789"; true for the empty string.
    static bool isDigits(const std::wstring& text);
    // Only "0123456789ABCDEFabcdef"; true for the empty string.
    static bool isHexadecimal(const std::wstring& text);
    // The text, or "NULL" for a null pointer.
    static std::wstring nullCheckedString(const wchar_t* text);

    // The lines of the decoded bytes (ByteArray::toWString), split at CR LF, CR
    // or LF. Empty lines are kept: a text that ends in a line end has a last,
    // empty line, and the empty text is one empty line.
    static std::vector<std::wstring> getLines(const ByteArray& bytes, const std::wstring& charset);
    // The first line end of the decoded bytes: "\r\n", "\r" or "\n"; empty if none.
    static std::wstring getLineSeparator(const ByteArray& bytes, const std::wstring& charset);

    // A size such as "100", "2kb", "1.5MB" or "3 GB" as a number of bytes.
    // A text without a number gives defaultValue (times the unit, if one was
    // given). Results from 2147483648 up give 2147483647; a negative result
    // keeps its low 32 bits.
    static int convertSizeString(const std::wstring& text, int defaultValue);
};

}  // namespace vorn_std
