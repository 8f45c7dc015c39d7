#include "vorn_std/log/LogFileFilter.h"

#include "vorn_std/log/LogEvent.h"

namespace vorn_std {

std::wstring LogFileFilter::toString() const { return L"LogFileFilter{}"; }

std::wstring LogFileFilter::getClassName() const { return L"vorn_std.LogFileFilter"; }

Configurable* LogFileFilter::newInstance(const Properties&) { return new LogFileFilter(); }

FilterDecision LogFileFilter::decide(const LogEvent& event) {
    return isDebugEventPriority(event.getPriority()) ? 1 : 0;
}

}  // namespace vorn_std
