#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vorn_std/base/Object.h"
#include "vorn_std/log/LogEventPriority.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

class ILogAppender;
class LogEvent;

// Runs a list of appenders, in the order they were added. Any thread may log;
// the logger's re-entrant lock is held through every appender's work, so
// events reach all appenders in one order, and code inside an appender may
// log again. An appender that throws is dropped at once, even while the same
// thread is logging through it again; nothing escapes a log call.
class VORNSTD_API LoggerBase : public Object {
public:
    LoggerBase();
    ~LoggerBase() override;
    LoggerBase(const LoggerBase&) = delete;
    LoggerBase& operator=(const LoggerBase&) = delete;

    std::wstring toString() const override;
    // The time is taken here, under the lock. The module goes no further.
    void log(LogEventPriority priority, const std::wstring& function, const std::wstring& message,
             const std::wstring& module, const std::wstring& errorId, unsigned long long threadId,
             const std::wstring& file, unsigned int line);
    void append(const LogEvent& event);
    // Throws VornIllegalArgumentException "Appender to add must not be NULL.";
    // an appender already in the list is not added twice.
    void addAppender(const std::shared_ptr<ILogAppender>& appender);
    void removeAppender(const std::shared_ptr<ILogAppender>& appender);
    bool containsAppender(const std::shared_ptr<ILogAppender>& appender);

private:
    using Appenders = std::vector<std::shared_ptr<ILogAppender>>;

    void dropAppender(const ILogAppender* appender);
    bool contains(const ILogAppender* appender) const;

    Lock lock;
    // Replaced, never changed in place: a walk keeps the list it started
    // with while an appender logging on the same thread changes the current one.
    std::shared_ptr<const Appenders> appenders;  // guarded by lock
};

}  // namespace vorn_std
