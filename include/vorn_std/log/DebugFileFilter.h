#pragma once

#include "vorn_std/log/ILogEventFilter.h"
#include "vorn_std/pattern/AutoRegisterClass.h"

namespace vorn_std {

// Takes every event: the debug file holds every line.
class VORNSTD_API DebugFileFilter : public ILogEventFilter,
                                    public AutoRegisterClass<DebugFileFilter> {
public:
    std::wstring toString() const override;
    std::wstring getClassName() const override;
    Configurable* newInstance(const Properties& properties) override;
    FilterDecision decide(const LogEvent& event) override;
};

}  // namespace vorn_std
