#include "vorn_std/connection/ZeroStartConnectionPolicy.h"

#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

std::wstring ZeroStartConnectionPolicy::getClassNameStatic() {
    return L"vorn_std.ZeroStartConnectionPolicy";
}

std::wstring ZeroStartConnectionPolicy::getClassName() const { return getClassNameStatic(); }

int ZeroStartConnectionPolicy::getIndexForNextConnectionAttempt(bool, bool isFirstAttempt) const {
    AutoLock<Lock> guard(&lock);
    return isFirstAttempt ? 0 : getIndexOfConnectionInfoInLastAttempt() + 1;
}

std::wstring ZeroStartConnectionPolicy::toString() const {
    return L"ZeroStartConnectionPolicy{" + AbstractConnectionPolicy::toString() + L"}";
}

}  // namespace vorn_std
