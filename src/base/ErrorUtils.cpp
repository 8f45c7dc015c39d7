#include "vorn_std/base/ErrorUtils.h"

#include <cxxabi.h>

#include <cerrno>
#include <cwctype>

#include "internal/SystemErrorText.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/log/ContextLogMessage.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* NullText = L" value is NULL.";
constexpr const wchar_t* NotNullText = L" value is not NULL.";
constexpr const wchar_t* DescriptionFailedText =
    L"An unexpected error occurred calling FormatMessage.";
constexpr const wchar_t* LibraryModule = L"VornStd";
constexpr const wchar_t* SourceFile = L"ErrorUtils.cpp";

void failCheck(const wchar_t* function, const wchar_t* name, const wchar_t* suffix) {
    const std::wstring text = std::wstring(name != nullptr ? name : L"") + suffix;
    ErrorUtils::logDebug(function, text);
    throw VornIllegalArgumentException(text);
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
