#pragma once

#include "vorn_std/connection/AbstractConnectionPolicy.h"

namespace vorn_std {

// Every attempt starts from the top of the list: 0, then one past the last
// position tried. What a new ConnectionManager uses.
class VORNSTD_API ZeroStartConnectionPolicy : public AbstractConnectionPolicy {
public:
    static std::wstring getClassNameStatic();

    std::wstring getClassName() const override;
    int getIndexForNextConnectionAttempt(bool isRecovery, bool isFirstAttempt) const override;
    std::wstring toString() const override;
};

}  // namespace vorn_std
