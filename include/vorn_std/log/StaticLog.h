#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std_internal {
class StaticLogControl;
}

namespace vorn_std {

// The one logger of the process, usable at any moment of its life. While no
// configured logger stands (before configuration, after a failed set-up, and
// from library unload on) a statement that passes the threshold goes to the
// debugger output: standard error, or the file named by VORNSTD_DEBUG_OUTPUT
// ("none" discards).
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

private:
    friend class vorn_std_internal::StaticLogControl;

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
};

}  // namespace vorn_std
