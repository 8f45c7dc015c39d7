#include "vorn_std/log/LoggerBase.h"

#include <cxxabi.h>

#include <algorithm>

#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/log/ILogAppender.h"
#include "vorn_std/log/LogEvent.h"
#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

namespace {
constexpr const wchar_t* NullAppenderText = L"Appender to add must not be NULL.";
}

LoggerBase::LoggerBase() = default;
LoggerBase::~LoggerBase() = default;

std::wstring LoggerBase::toString() const { return L"LoggerBase{}"; }

void LoggerBase::log(LogEventPriority priority, const std::wstring& function,
                     const std::wstring& message, const std::wstring&, const std::wstring& errorId,
                     unsigned long long threadId, const std::wstring& file, unsigned int line) {
    AutoLock<Lock> guard(&lock);
    LogEvent event(priority);
    event.setErrorId(errorId);
    event.setThreadId(threadId);
    event.setFunction(function);
    event.setMessage(message);
    event.setFileName(file);
    event.setLineNumber(line);
    append(event);
}

// Walks a snapshot: an appender may log again on this thread, and that inner
// statement may drop an appender from the list (or this one) meanwhile.
void LoggerBase::append(const LogEvent& event) {
    AutoLock<Lock> guard(&lock);
    if (appenders.empty()) {
        return;
    }
    const std::vector<std::shared_ptr<ILogAppender>> snapshot = appenders;
    for (const auto& appender : snapshot) {
        if (std::find(appenders.begin(), appenders.end(), appender) == appenders.end()) {
            continue;
        }
        try {
            appender->append(event);
        } catch (abi::__forced_unwind&) {
            throw;
        } catch (...) {
            dropAppender(appender.get());
        }
    }
}

void LoggerBase::dropAppender(const ILogAppender* appender) {
    appenders.erase(std::remove_if(appenders.begin(), appenders.end(),
                                   [appender](const auto& entry) { return entry.get() == appender; }),
                    appenders.end());
}

void LoggerBase::addAppender(const std::shared_ptr<ILogAppender>& appender) {
    if (!appender) {
        throw VornIllegalArgumentException(NullAppenderText);
    }
    AutoLock<Lock> guard(&lock);
    if (!containsAppender(appender)) {
        appenders.push_back(appender);
    }
}

void LoggerBase::removeAppender(const std::shared_ptr<ILogAppender>& appender) {
    AutoLock<Lock> guard(&lock);
    dropAppender(appender.get());
}

bool LoggerBase::containsAppender(const std::shared_ptr<ILogAppender>& appender) {
    AutoLock<Lock> guard(&lock);
    return std::any_of(appenders.begin(), appenders.end(),
                       [&](const auto& entry) { return entry.get() == appender.get(); });
}

}  // namespace vorn_std
