#include "vorn_std/connection/LastPlusOneConnectionPolicy.h"

#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

std::wstring LastPlusOneConnectionPolicy::getClassNameStatic() {
    return L"vorn_std.LastPlusOneConnectionPolicy";
}

std::wstring LastPlusOneConnectionPolicy::getClassName() const { return getClassNameStatic(); }

int LastPlusOneConnectionPolicy::getIndexForNextConnectionAttempt(bool, bool) const {
    AutoLock<Lock> guard(&lock);
    return getIndexOfConnectionInfoInLastAttempt() + 1;
}

std::wstring LastPlusOneConnectionPolicy::toString() const {
    return L"LastPlusOneConnectionPolicy{" + AbstractConnectionPolicy::toString() + L"}";
}

}  // namespace vorn_std
