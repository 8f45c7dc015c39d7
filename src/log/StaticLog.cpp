#include "vorn_std/log/StaticLog.h"

#include "internal/CancellationGuard.h"
#include "internal/DebugOutput.h"
#include "internal/StaticLogControl.h"

namespace vorn_std {

std::atomic<uint32_t> StaticLog::thresholdState{(static_cast<uint32_t>(DEBUG) << ThresholdShift) |
                                                static_cast<uint32_t>(DEBUG)};
std::atomic<bool> StaticLog::destroyed{false};

namespace {

constexpr uint32_t ThresholdMask = 0xFFu;
constexpr const wchar_t* DebuggerSeparator = L" : ";

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
    // Set by the configured instance; none exists before initInstance.
    return std::wstring();
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

void StaticLog::destroyInstance() {
    if (destroyed.exchange(true)) {
        return;
    }
    setInitialized(false);
}

void StaticLog::log(LogEventPriority priority, const std::wstring& function,
                    const std::wstring& message, const std::wstring& module,
                    const std::wstring& errorId, unsigned long long threadId,
                    const std::wstring& file, unsigned int line) {
    (void)function, (void)module, (void)errorId, (void)threadId;
    vorn_std_internal::CancellationGuard noCancellation;
    if (!isInitialized()) {
        writeToDebugger(priority, message, file, line);
    }
    // Otherwise the configured instance takes the event; without one it is dropped.
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

}  // namespace vorn_std_internal
