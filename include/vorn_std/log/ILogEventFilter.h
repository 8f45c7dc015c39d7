#pragma once

#include "vorn_std/pattern/Configurable.h"

namespace vorn_std {

class LogEvent;

// 0 accepts an event; anything else refuses it.
using FilterDecision = int;

// Decides whether an appender takes an event. Called under the appender's lock.
class VORNSTD_API ILogEventFilter : public Configurable {
public:
    ~ILogEventFilter() override;
    virtual FilterDecision decide(const LogEvent& event) = 0;
};

}  // namespace vorn_std
