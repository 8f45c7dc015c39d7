#include "vorn_std/log/LogEventPriority.h"

#include <iterator>

#include "internal/PriorityName.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* PriorityNames[] = {L"DUMP", L"TRACE", L"CALL", L"DEBUG",
                                            L"INFO", L"WARN",  L"ERROR", L"FATAL"};
constexpr int PriorityCount = static_cast<int>(std::size(PriorityNames));
constexpr const wchar_t* InvalidPriorityText = L"Invalid Priority Specified";

}  // namespace

std::wstring logEventPriorityToString(LogEventPriority priority) {
    return vorn_std_internal::priorityName(priority);
}

LogEventPriority logEventPriorityFromString(const std::wstring& text,
                                            LogEventPriority defaultValue) {
    for (int index = 0; index < PriorityCount; ++index) {
        if (text == PriorityNames[index]) {
            return static_cast<LogEventPriority>(index);
        }
    }
    return defaultValue;
}

bool isDebugEventPriority(LogEventPriority priority) { return priority < INFO; }

}  // namespace vorn_std

namespace vorn_std_internal {

const wchar_t* priorityName(vorn_std::LogEventPriority priority) {
    const int index = static_cast<int>(priority);
    return index >= 0 && index < vorn_std::PriorityCount ? vorn_std::PriorityNames[index]
                                                         : vorn_std::InvalidPriorityText;
}

}  // namespace vorn_std_internal
