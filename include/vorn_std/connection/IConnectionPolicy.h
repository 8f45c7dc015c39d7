#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Decides which of a manager's servers (positions 0, 1, 2 ... in the
// implementer's list) to try next. A policy knows nothing of the list's
// length: a position past its end is the implementer's to refuse.
class VORNSTD_API IConnectionPolicy {
public:
    virtual ~IConnectionPolicy();
    virtual std::wstring getClassName() const = 0;
    virtual int getIndexOfConnectionInfoInLastAttempt() const = 0;
    virtual int getIndexOfConnectionInfoInLastSuccessful() const = 0;
    // isFirstAttempt: the first position of an attempt; isRecovery: during
    // automatic recovery.
    virtual int getIndexForNextConnectionAttempt(bool isRecovery, bool isFirstAttempt) const = 0;
    virtual void setIndexOfConnectionInfoInLastAttempt(int index) = 0;
    virtual void setIndexOfConnectionInfoInLastSuccessful(int index) = 0;
    virtual std::wstring toString() const = 0;
};

}  // namespace vorn_std
