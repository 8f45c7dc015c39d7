#pragma once

#include <string>

#include "vorn_std/pattern/Configurable.h"

namespace vorn_std {

class LogEvent;

// Turns an event into its text line. Called under the appender's lock.
class VORNSTD_API ILogEventLayout : public Configurable {
public:
    ~ILogEventLayout() override;
    virtual std::wstring format(const LogEvent& event) = 0;
};

}  // namespace vorn_std
