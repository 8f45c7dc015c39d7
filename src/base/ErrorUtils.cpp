#include "vorn_std/base/ErrorUtils.h"

#include <cxxabi.h>

#include <cerrno>
#include <cwctype>

#include "internal/SystemErrorText.h"
#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/log/ContextLogMessage.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* NullText = L" value is NULL.";
constexpr const wchar_t* NotNullText = L" value is not NULL.";
constexpr const wchar_t* EmptyText = L" value is empty.";
constexpr const wchar_t* EqualFormat = L"%ls value is equal to %ls.";
constexpr const wchar_t* BelowMinimumFormat = L"%ls value %ls is below minimum of %ls.";
constexpr const wchar_t* AboveMaximumFormat = L"%ls value %ls is above maximum of %ls.";
constexpr const wchar_t* OutsideRangeFormat =
    L"%ls value %ls is outside minimum of %ls and maximum of %ls.";
constexpr const wchar_t* DescriptionFailedText =
    L"An unexpected error occurred calling FormatMessage.";
constexpr const wchar_t* LibraryModule = L"VornStd";
constexpr const wchar_t* SourceFile = L"ErrorUtils.cpp";

const wchar_t* orEmpty(const wchar_t* text) { return text != nullptr ? text : L""; }

[[noreturn]] void fail(const wchar_t* function, const std::wstring& text) {
    ErrorUtils::logDebug(function, text);
    throw VornIllegalArgumentException(text);
}

[[noreturn]] void failCheck(const wchar_t* function, const wchar_t* name, const wchar_t* suffix) {
    fail(function, orEmpty(name) + std::wstring(suffix));
}

[[noreturn]] void failLimit(const wchar_t* function, const wchar_t* format, const wchar_t* name,
                            long long value, long long limit) {
    std::wstring text;
    StringUtils::sprintfStringAppend(text, format, orEmpty(name), std::to_wstring(value).c_str(),
                                     std::to_wstring(limit).c_str());
    fail(function, text);
}

}  // namespace

int ErrorUtils::getLastError() { return errno; }

std::wstring ErrorUtils::getLastErrorDescription() { return getErrorDescription(getLastError()); }

std::wstring ErrorUtils::getErrorDescription(int code) { return getWindowsErrorDescription(code); }

std::wstring ErrorUtils::getWindowsErrorDescription(int code) {
    try {
        std::wstring text = vorn_std_internal::systemErrorText(code);
        while (!text.empty() && std::iswspace(static_cast<wint_t>(text.back()))) {
            text.pop_back();
        }
        return std::to_wstring(code) + L":" + text;
    } catch (...) {
        return std::to_wstring(code) + L":" + DescriptionFailedText;
    }
}

void ErrorUtils::isNullEx(const void* pointer, const wchar_t* function, const wchar_t* name) {
    if (pointer == nullptr) {
        failCheck(function, name, NullText);
    }
}

void ErrorUtils::isNotNullEx(const void* pointer, const wchar_t* function, const wchar_t* name) {
    if (pointer != nullptr) {
        failCheck(function, name, NotNullText);
    }
}

void ErrorUtils::isEmptyEx(const std::wstring& value, const wchar_t* function,
                           const wchar_t* name) {
    if (value.empty()) {
        failCheck(function, name, EmptyText);
    }
}

void ErrorUtils::isEqualEx(const std::wstring& value, const std::wstring& other,
                           const wchar_t* function, const wchar_t* name,
                           const wchar_t* otherName) {
    if (value == other) {
        std::wstring text;
        StringUtils::sprintfStringAppend(text, EqualFormat, orEmpty(name), orEmpty(otherName));
        fail(function, text);
    }
}

void ErrorUtils::isBelowMinimumEx(long long value, long long minimum, const wchar_t* function,
                                  const wchar_t* name) {
    if (value < minimum) {
        failLimit(function, BelowMinimumFormat, name, value, minimum);
    }
}

void ErrorUtils::isAboveMaximumEx(long long value, long long maximum, const wchar_t* function,
                                  const wchar_t* name) {
    if (value > maximum) {
        failLimit(function, AboveMaximumFormat, name, value, maximum);
    }
}

void ErrorUtils::isOutsideRangeEx(long long value, long long minimum, long long maximum,
                                  const wchar_t* function, const wchar_t* name) {
    if (value < minimum || value > maximum) {
        std::wstring text;
        StringUtils::sprintfStringAppend(text, OutsideRangeFormat, orEmpty(name),
                                         std::to_wstring(value).c_str(),
                                         std::to_wstring(minimum).c_str(),
                                         std::to_wstring(maximum).c_str());
        fail(function, text);
    }
}

bool ErrorUtils::isNull(const void* pointer, const wchar_t* function, const wchar_t* name) {
    try {
        isNullEx(pointer, function, name);
        return false;
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (...) {
        return true;
    }
}

bool ErrorUtils::isNotNull(const void* pointer, const wchar_t* function, const wchar_t* name) {
    try {
        isNotNullEx(pointer, function, name);
        return false;
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (...) {
        return true;
    }
}

void ErrorUtils::logDebug(const wchar_t* function, const std::wstring& text) {
    if (StaticLog::isThresholdOn(DEBUG)) {
        ContextLogMessage::log(DEBUG, function, LibraryModule, L"", Thread::getCurrentThreadId(),
                               SourceFile, __LINE__, L"%ls", text.c_str());
    }
}

}  // namespace vorn_std
