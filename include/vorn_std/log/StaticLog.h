#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"
#include "vorn_std/log/StaticLogPtr.h"

namespace vorn_std_internal {
class StaticLogControl;
}

namespace vorn_std {

class ILogAppender;
class Lock;
class LoggerBase;

// The one logger of the process, usable at any moment of its life. While no
// configured logger stands (before configuration, after a failed set-up, and
// from library unload on) a statement that passes the threshold goes to the
// debugger output: standard error, or the file named by VORNSTD_DEBUG_OUTPUT
// ("none" discards).
//
// Once configured, a statement holds, outermost first, the log's singleton
// lock, the instance's lock, the logger's lock and then an appender's lock,
// all re-entrant, through the appender's write: code that logs while holding
// a lock of its own takes these after it.
//
// Any thread may log. The threshold test takes no lock and may see a change
// one statement late. The debugger-output path takes no lock of the library.
class VORNSTD_API StaticLog {
public:
    // Lock-free: one relaxed load. Before configuration (and after unload) the
    // answer is priority >= DEBUG; once configured, priority >= the threshold.
    static bool isThresholdOn(LogEventPriority priority) {
        return static_cast<uint32_t>(priority) >=
               (thresholdState.load(std::memory_order_relaxed) & GateMask);
    }
    static LogEventPriority getThreshold();
    static std::wstring getModuleName();

    // Does not test the threshold: whoever calls it has decided.
    static void log(LogEventPriority priority, const std::wstring& function,
                    const std::wstring& message, const std::wstring& module,
                    const std::wstring& errorId, unsigned long long threadId,
                    const std::wstring& file, unsigned int line);

    // Forwarded to the instance's logger; without effect while there is none.
    static void addAppender(const std::shared_ptr<ILogAppender>& appender);
    static void removeAppender(const std::shared_ptr<ILogAppender>& appender);

    ~StaticLog();
    StaticLog(const StaticLog&) = delete;
    StaticLog& operator=(const StaticLog&) = delete;

private:
    friend class StaticLogPtr;
    friend class vorn_std_internal::StaticLogControl;

    StaticLog();
    static StaticLogPtr getInstance();
    static void initLocks();
    static void initInstance(const std::wstring& moduleName,
                             const std::vector<std::shared_ptr<ILogAppender>>& appenders,
                             LogEventPriority threshold);
    void init(const std::vector<std::shared_ptr<ILogAppender>>& appenders,
              LogEventPriority threshold);

    // 'initialized' and 'currentThreshold' share one word with the priority a
    // statement must reach now (the gate), so the hot test is a single load.
    static constexpr uint32_t GateMask = 0xFFu;
    static constexpr uint32_t ThresholdShift = 8;
    static constexpr uint32_t InitializedBit = 1u << 16;

    static uint32_t withGate(uint32_t state);
    static void updateState(uint32_t clearBits, uint32_t setBits);
    static bool isInitialized();
    static void setInitialized(bool initialized);
    static void setCurrentThreshold(LogEventPriority threshold);
    static void destroyInstance();
    static void writeToDebugger(LogEventPriority priority, const std::wstring& message,
                                const std::wstring& file, unsigned int line);

    static std::atomic<uint32_t> thresholdState;
    static std::atomic<bool> destroyed;
    static std::atomic<Lock*> singletonLock;
    static std::atomic<StaticLog*> instance;

    std::unique_ptr<Lock> lock;
    std::unique_ptr<LoggerBase> logger;
    std::wstring moduleName;
};

}  // namespace vorn_std
