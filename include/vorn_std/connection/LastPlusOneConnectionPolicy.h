#pragma once

#include "vorn_std/connection/AbstractConnectionPolicy.h"

namespace vorn_std {

// Goes on from where the last attempt stopped: one past the last position
// tried, always, which spreads successive connections over the list.
class VORNSTD_API LastPlusOneConnectionPolicy : public AbstractConnectionPolicy {
public:
    static std::wstring getClassNameStatic();

    std::wstring getClassName() const override;
    int getIndexForNextConnectionAttempt(bool isRecovery, bool isFirstAttempt) const override;
    std::wstring toString() const override;
};

}  // namespace vorn_std
