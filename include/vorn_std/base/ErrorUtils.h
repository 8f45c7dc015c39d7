#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Argument checks and descriptions of operating-system error numbers.
// A failed check writes its text at DEBUG under the caller's function name,
// then throws VornIllegalArgumentException with the same text.
class VORNSTD_API ErrorUtils {
public:
    ErrorUtils() = delete;

    // The calling thread's last operating-system error number (errno).
    static int getLastError();
    static std::wstring getLastErrorDescription();
    static std::wstring getErrorDescription(int code);
    // "<code>:<text>"; a number the system does not know gives "<code>:".
    static std::wstring getWindowsErrorDescription(int code);

    // Throws name + " value is NULL." if pointer is null.
    static void isNullEx(const void* pointer, const wchar_t* function, const wchar_t* name);
    // Throws name + " value is not NULL." if pointer is set.
    static void isNotNullEx(const void* pointer, const wchar_t* function, const wchar_t* name);
    // Throws name + " value is empty." if value is empty.
    static void isEmptyEx(const std::wstring& value, const wchar_t* function, const wchar_t* name);
    // Throws "<name> value is equal to <otherName>." if the two values are equal.
    static void isEqualEx(const std::wstring& value, const std::wstring& other,
                          const wchar_t* function, const wchar_t* name, const wchar_t* otherName);
    // Throws "<name> value <value> is below minimum of <minimum>." if value < minimum.
    static void isBelowMinimumEx(long long value, long long minimum, const wchar_t* function,
                                 const wchar_t* name);
    // Throws "<name> value <value> is above maximum of <maximum>." if value > maximum.
    static void isAboveMaximumEx(long long value, long long maximum, const wchar_t* function,
                                 const wchar_t* name);
    // Throws "<name> value <value> is outside minimum of <minimum> and maximum of <maximum>."
    // if value < minimum or value > maximum.
    static void isOutsideRangeEx(long long value, long long minimum, long long maximum,
                                 const wchar_t* function, const wchar_t* name);
    // Whether pointer is null, with the debug line of isNullEx as a side effect.
    static bool isNull(const void* pointer, const wchar_t* function, const wchar_t* name);
    static bool isNotNull(const void* pointer, const wchar_t* function, const wchar_t* name);

    // Writes text at DEBUG with module "VornStd" under the given function name.
    static void logDebug(const wchar_t* function, const std::wstring& text);
};

}  // namespace vorn_std
