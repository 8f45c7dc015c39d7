#pragma once

#include <cstdarg>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std {

// Logs the entry ("Begin." or a formatted text) and the exit ("End.") of a
// scope at one priority. Each line is written only if the threshold admits the
// priority at that moment: "End." follows the threshold at destruction, not
// what the constructor did.
class VORNSTD_API LogFunctionCall {
public:
    LogFunctionCall(const wchar_t* function, const wchar_t* module, const wchar_t* file,
                    unsigned int line, LogEventPriority priority, bool logBegin);
    LogFunctionCall(const wchar_t* function, const wchar_t* module, const wchar_t* file,
                    unsigned int line, LogEventPriority priority, const wchar_t* format, ...);
    virtual ~LogFunctionCall();
    LogFunctionCall(const LogFunctionCall&) = delete;
    LogFunctionCall& operator=(const LogFunctionCall&) = delete;

    void print(const wchar_t* format, ...) const;

private:
    void write(const std::wstring& message) const;
    void writeFormatted(const wchar_t* format, va_list args) const;

    std::wstring function;
    std::wstring module;
    std::wstring file;
    unsigned int line;
    LogEventPriority priority;
};

}  // namespace vorn_std
