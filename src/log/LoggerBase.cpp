#include "vorn_std/log/LoggerBase.h"

#include <cxxabi.h>

#include <algorithm>

#include "internal/ReusedLogEvent.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/log/ILogAppender.h"
#include "vorn_std/log/LogEvent.h"
#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

namespace {
constexpr const wchar_t* NullAppenderText = L"Appender to add must not be NULL.";
}

LoggerBase::LoggerBase() : appenders(std::make_shared<const Appenders>()) {}
LoggerBase::~LoggerBase() = default;

std::wstring LoggerBase::toString() const { return L"LoggerBase{}"; }

void LoggerBase::log(LogEventPriority priority, const std::wstring& function,
                     const std::wstring& message, const std::wstring&, const std::wstring& errorId,
                     unsigned long long threadId, const std::wstring& file, unsigned int line) {
    AutoLock<Lock> guard(&lock);
    vorn_std_internal::ReusedLogEvent reused(priority);
    LogEvent& event = reused.event();
    event.setErrorId(errorId);
    event.setThreadId(threadId);
    event.setFunction(function);
    event.setMessage(message);
    event.setFileName(file);
    event.setLineNumber(line);
    append(event);
}

// Walks the list as it was: an appender may log again on this thread, and
// that inner statement may drop an appender (or this one) meanwhile; one that
// was dropped is skipped.
void LoggerBase::append(const LogEvent& event) {
    AutoLock<Lock> guard(&lock);
    const std::shared_ptr<const Appenders> walked = appenders;
    for (const auto& appender : *walked) {
        if (appenders != walked && !contains(appender.get())) {
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
    auto remaining = std::make_shared<Appenders>();
    for (const auto& entry : *appenders) {
        if (entry.get() != appender) {
            remaining->push_back(entry);
        }
    }
    appenders = std::move(remaining);
}

bool LoggerBase::contains(const ILogAppender* appender) const {
    return std::any_of(appenders->begin(), appenders->end(),
                       [appender](const auto& entry) { return entry.get() == appender; });
}

void LoggerBase::addAppender(const std::shared_ptr<ILogAppender>& appender) {
    if (!appender) {
        throw VornIllegalArgumentException(NullAppenderText);
    }
    AutoLock<Lock> guard(&lock);
    if (!contains(appender.get())) {
        auto extended = std::make_shared<Appenders>(*appenders);
        extended->push_back(appender);
        appenders = std::move(extended);
    }
}

void LoggerBase::removeAppender(const std::shared_ptr<ILogAppender>& appender) {
    AutoLock<Lock> guard(&lock);
    dropAppender(appender.get());
}

bool LoggerBase::containsAppender(const std::shared_ptr<ILogAppender>& appender) {
    AutoLock<Lock> guard(&lock);
    return contains(appender.get());
}

}  // namespace vorn_std
