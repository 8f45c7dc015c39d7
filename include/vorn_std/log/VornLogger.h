#pragma once

#include <cstdarg>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std {

// Base of a catalogue of numbered messages: a number stands for one text at
// one level, so support can look a line up whatever the wording around it.
// The number travels as the event's error id (the layout prints it after the
// priority), not in the text. Messages make no threshold test: they reach the
// appenders, whose filters decide. A format that fails still goes out, raw,
// under its number. Stateless: any thread may call.
class VORNSTD_API VornLogger {
public:
    virtual ~VornLogger();
    virtual std::wstring getModuleName() const = 0;

    // The part behind the last "::"; all of it if there is none.
    static std::wstring getFunctionName(const std::wstring& name);
    // The part behind the last but one "::" ("RollingFileAppender::setProperty"),
    // behind the last one if there is just one, all of it if there is none.
    static std::wstring getQualifiedFunctionName(const std::wstring& name);

protected:
    // id is the message function's qualified name, as "vorn_std::VornLoggerSTD::STD0009".
    void Fatal(const std::wstring& id, const std::wstring& function, const wchar_t* format, ...);
    void Error(const std::wstring& id, const std::wstring& function, const wchar_t* format, ...);
    void Warn(const std::wstring& id, const std::wstring& function, const wchar_t* format, ...);
    void Info(const std::wstring& id, const std::wstring& function, const wchar_t* format, ...);
    void logMessage(LogEventPriority priority, const std::wstring& id, const std::wstring& function,
                    const wchar_t* format, va_list args);
};

}  // namespace vorn_std
