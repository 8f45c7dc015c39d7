#pragma once

#include <cstdarg>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Static text helpers.
class VORNSTD_API StringUtils {
public:
    StringUtils() = delete;

    // Appends printf-style wide formatting to out ("%ls" for a wide string).
    // A null format: VornIllegalArgumentException "Format string cannot be null!".
    // A failed conversion: VornIllegalArgumentException "Unable to format string: " + format.
    // No memory: VornOutOfResourcesException.
    static void sprintfStringAppend(std::wstring& out, const wchar_t* format, ...);
    static void sprintfStringAppendVA(std::wstring& out, va_list args, const wchar_t* format);
};

}  // namespace vorn_std
