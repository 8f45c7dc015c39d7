#pragma once

#include "vorn_std/base/Object.h"
#include "vorn_std/connection/IConnectionPolicy.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

// Keeps the last attempted and last successful positions (-1 at first) under
// its own lock, so any thread may read it; a manager calls it holding its own
// lock (manager first, policy second).
class VORNSTD_API AbstractConnectionPolicy : public IConnectionPolicy, public Object {
public:
    static std::wstring getClassNameStatic();

    AbstractConnectionPolicy();
    ~AbstractConnectionPolicy() override;

    std::wstring getClassName() const override;
    int getIndexOfConnectionInfoInLastAttempt() const override;
    int getIndexOfConnectionInfoInLastSuccessful() const override;
    void setIndexOfConnectionInfoInLastAttempt(int index) override;
    void setIndexOfConnectionInfoInLastSuccessful(int index) override;
    std::wstring toString() const override;

protected:
    mutable Lock lock;

private:
    int indexOfLastAttempted;   // guarded by lock
    int indexOfLastSuccessful;  // guarded by lock
};

}  // namespace vorn_std
