#pragma once

#include "vorn_std/log/NTServiceLoggerMessages.h"
#include "vorn_std/log/VornLoggerSTD.h"

namespace vorn_std {

// The service host's catalogue: SL1nnn and SL2nnn are ERROR, SL4nnn INFO.
// Module "VornStd". A plain local object.
class VORNSTD_API NTServiceLogger : public VornLogger {
public:
    NTServiceLogger();
    ~NTServiceLogger() override;
    std::wstring getModuleName() const override;

    VORN_SL_MESSAGES(VORN_DECLARE_MESSAGE)
};

}  // namespace vorn_std
