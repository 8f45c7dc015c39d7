#include "vorn_std/log/StaticLog.h"

#include <cxxabi.h>

#include "internal/CancellationGuard.h"
#include "internal/DebugOutput.h"
#include "internal/StaticLogControl.h"
#include "vorn_std/exception/VornException.h"
#include "vorn_std/log/InternalDebug.h"
#include "vorn_std/log/LoggerBase.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

std::atomic<uint32_t> StaticLog::thresholdState{(static_cast<uint32_t>(DEBUG) << ThresholdShift) |
                                                static_cast<uint32_t>(DEBUG)};
std::atomic<bool> StaticLog::destroyed{false};
std::atomic<Lock*> StaticLog::singletonLock{nullptr};
std::atomic<StaticLog*> StaticLog::instance{nullptr};

namespace {
// The singleton lock after unload: reachable, never freed, as a statement of
// another thread may still be waiting on it.
std::atomic<Lock*> retiredSingletonLock{nullptr};
}  // namespace

namespace {

constexpr uint32_t ThresholdMask = 0xFFu;
constexpr const wchar_t* DebuggerSeparator = L" : ";
constexpr const wchar_t* SourceFile = L"StaticLog.cpp";
constexpr const wchar_t* NoAppendersText =
    L"Logging was not initialized because no appenders were found.";

void debugLine(const wchar_t* function, unsigned int line, const wchar_t* format,
               const std::wstring& argument = std::wstring()) {
    if (__internal_debug_on()) {
        __internal_debug(function, SourceFile, line, format, argument.c_str());
    }
}

}  // namespace

// The priority a statement must reach: the configured threshold only while a
// configured logger stands, DEBUG otherwise.
uint32_t StaticLog::withGate(uint32_t state) {
    const uint32_t gate = (state & InitializedBit) != 0 ? (state >> ThresholdShift) & ThresholdMask
                                                        : static_cast<uint32_t>(DEBUG);
    return (state & ~GateMask) | gate;
}

void StaticLog::updateState(uint32_t clearBits, uint32_t setBits) {
    uint32_t state = thresholdState.load(std::memory_order_relaxed);
    while (!thresholdState.compare_exchange_weak(state, withGate((state & ~clearBits) | setBits),
                                                 std::memory_order_relaxed)) {
    }
}

LogEventPriority StaticLog::getThreshold() {
    const uint32_t state = thresholdState.load(std::memory_order_relaxed);
    return static_cast<LogEventPriority>((state >> ThresholdShift) & ThresholdMask);
}

std::wstring StaticLog::getModuleName() {
    StaticLogPtr guard = getInstance();
    return guard ? guard->moduleName : std::wstring();
}

StaticLog::StaticLog() : lock(std::make_unique<Lock>()), logger(std::make_unique<LoggerBase>()) {}

// Waits for a statement still inside the instance, then lets the logger go.
StaticLog::~StaticLog() {
    vorn_std_internal::CancellationGuard noCancellation;
    try {
        AutoLock<Lock> guard(lock.get());
    } catch (...) {
    }
}

void StaticLog::initLocks() {
    if (singletonLock.load() == nullptr) {
        singletonLock = new Lock();
    }
}

StaticLogPtr StaticLog::getInstance() {
    StaticLogPtr guard;
    Lock* outer = singletonLock.load();
    if (destroyed.load() || outer == nullptr || instance.load() == nullptr) {
        return guard;
    }
    try {
        AutoLock<Lock> held(outer);
        if (StaticLog* current = instance.load()) {
            guard.reset(current);
        }
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (const VornException& e) {
        debugLine(L"vorn_std::StaticLog::getInstance", __LINE__,
                  L"getInstance Caught Exception: %ls", e.toString());
        debugLine(L"vorn_std::StaticLog::getInstance", __LINE__, L"\tSingletonLock: %ls",
                  outer->toString());
        StaticLog* current = instance.load();
        debugLine(L"vorn_std::StaticLog::getInstance", __LINE__, L"\tInstanceLock: %ls",
                  current != nullptr ? current->lock->toString() : std::wstring());
    } catch (...) {
        debugLine(L"vorn_std::StaticLog::getInstance", __LINE__,
                  L"getInstance Caught Unknown Exception.");
    }
    return guard;
}

void StaticLog::initInstance(const std::wstring& moduleName,
                             const std::vector<std::shared_ptr<ILogAppender>>& appenders,
                             LogEventPriority threshold) {
    Lock* outer = singletonLock.load();
    if (destroyed.load() || outer == nullptr || instance.load() != nullptr) {
        return;
    }
    try {
        AutoLock<Lock> held(outer);
        if (instance.load() != nullptr) {
            return;
        }
        auto* created = new StaticLog();
        created->moduleName = moduleName;
        AutoLock<Lock> instanceHeld(created->lock.get());
        instance = created;
        created->init(appenders, threshold);
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (...) {
        // A failed set-up leaves statements on the debugger output.
    }
}

// With both locks held: statements of other threads wait until the appenders
// stand; this thread's own statements still see the log uninitialised.
void StaticLog::init(const std::vector<std::shared_ptr<ILogAppender>>& appenders,
                     LogEventPriority threshold) {
    setCurrentThreshold(threshold);
    for (const auto& appender : appenders) {
        logger->addAppender(appender);
    }
    setInitialized(!appenders.empty());
    if (appenders.empty()) {
        debugLine(L"vorn_std::StaticLog::init", __LINE__, NoAppendersText);
    }
}

void StaticLog::addAppender(const std::shared_ptr<ILogAppender>& appender) {
    StaticLogPtr guard = getInstance();
    if (guard) {
        guard->logger->addAppender(appender);
    }
}

void StaticLog::removeAppender(const std::shared_ptr<ILogAppender>& appender) {
    StaticLogPtr guard = getInstance();
    if (guard) {
        guard->logger->removeAppender(appender);
    }
}

bool StaticLog::isInitialized() {
    return (thresholdState.load(std::memory_order_relaxed) & InitializedBit) != 0;
}

void StaticLog::setInitialized(bool initialized) {
    if (!initialized) {
        updateState(InitializedBit, 0);
    } else if (!destroyed.load()) {  // the destroyed state is final
        updateState(0, InitializedBit);
    }
}

void StaticLog::setCurrentThreshold(LogEventPriority threshold) {
    updateState(ThresholdMask << ThresholdShift,
                (static_cast<uint32_t>(threshold) & ThresholdMask) << ThresholdShift);
}

// From here on, for good, statements go to the debugger output. The lock is
// never freed: a statement of another thread may still be waiting on it.
void StaticLog::destroyInstance() {
    if (destroyed.exchange(true)) {
        return;
    }
    setInitialized(false);
    Lock* outer = singletonLock.load();
    StaticLog* doomed = nullptr;
    if (outer != nullptr) {
        AutoLock<Lock> held(outer);
        doomed = instance.exchange(nullptr);
        retiredSingletonLock = singletonLock.exchange(nullptr);
    }
    delete doomed;
}

void StaticLog::log(LogEventPriority priority, const std::wstring& function,
                    const std::wstring& message, const std::wstring& module,
                    const std::wstring& errorId, unsigned long long threadId,
                    const std::wstring& file, unsigned int line) {
    vorn_std_internal::CancellationGuard noCancellation;
    if (!isInitialized()) {
        writeToDebugger(priority, message, file, line);
        return;
    }
    // Nothing escapes a log statement: a failing appender is already dropped
    // by the logger, and what fails around it costs this one event.
    try {
        StaticLogPtr guard = getInstance();
        if (guard) {
            guard->logger->log(priority, function, message, module, errorId, threadId, file, line);
        }
    } catch (...) {
    }
}

void StaticLog::writeToDebugger(LogEventPriority priority, const std::wstring& message,
                                const std::wstring& file, unsigned int line) {
    std::wstring text;
    if (priority >= INFO) {
        text = logEventPriorityToString(priority) + DebuggerSeparator + message;
    } else {
        text = file + L"[" + std::to_wstring(line) + L"]" + DebuggerSeparator + message;
    }
    if (text.back() != L'\n') {
        text += L'\n';
    }
    vorn_std_internal::DebugOutput::write(text);
}

}  // namespace vorn_std

namespace vorn_std_internal {

using vorn_std::StaticLog;

bool StaticLogControl::isInitialized() { return StaticLog::isInitialized(); }
void StaticLogControl::setInitialized(bool initialized) { StaticLog::setInitialized(initialized); }
void StaticLogControl::setCurrentThreshold(vorn_std::LogEventPriority threshold) {
    StaticLog::setCurrentThreshold(threshold);
}
void StaticLogControl::destroyInstance() { StaticLog::destroyInstance(); }
void StaticLogControl::initLocks() { StaticLog::initLocks(); }
void StaticLogControl::initInstance(const std::wstring& moduleName,
                                    const std::vector<std::shared_ptr<vorn_std::ILogAppender>>& appenders,
                                    vorn_std::LogEventPriority threshold) {
    StaticLog::initInstance(moduleName, appenders, threshold);
}

}  // namespace vorn_std_internal
