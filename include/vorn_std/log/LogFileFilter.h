#pragma once

#include "vorn_std/log/ILogEventFilter.h"
#include "vorn_std/pattern/AutoRegisterClass.h"

namespace vorn_std {

// Refuses the debug priorities: the log file holds INFO and up.
class VORNSTD_API LogFileFilter : public ILogEventFilter, public AutoRegisterClass<LogFileFilter> {
public:
    std::wstring toString() const override;
    std::wstring getClassName() const override;
    Configurable* newInstance(const Properties& properties) override;
    FilterDecision decide(const LogEvent& event) override;
};

}  // namespace vorn_std
