#include "vorn_std/connection/AbstractConnectionPolicy.h"

#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

IConnectionPolicy::~IConnectionPolicy() = default;

std::wstring AbstractConnectionPolicy::getClassNameStatic() {
    return L"vorn_std.AbstractConnectionPolicy";
}

AbstractConnectionPolicy::AbstractConnectionPolicy()
    : indexOfLastAttempted(-1), indexOfLastSuccessful(-1) {}

AbstractConnectionPolicy::~AbstractConnectionPolicy() = default;

std::wstring AbstractConnectionPolicy::getClassName() const { return getClassNameStatic(); }

int AbstractConnectionPolicy::getIndexOfConnectionInfoInLastAttempt() const {
    AutoLock<Lock> guard(&lock);
    return indexOfLastAttempted;
}

int AbstractConnectionPolicy::getIndexOfConnectionInfoInLastSuccessful() const {
    AutoLock<Lock> guard(&lock);
    return indexOfLastSuccessful;
}

void AbstractConnectionPolicy::setIndexOfConnectionInfoInLastAttempt(int index) {
    AutoLock<Lock> guard(&lock);
    indexOfLastAttempted = index;
}

void AbstractConnectionPolicy::setIndexOfConnectionInfoInLastSuccessful(int index) {
    AutoLock<Lock> guard(&lock);
    indexOfLastSuccessful = index;
}

std::wstring AbstractConnectionPolicy::toString() const {
    AutoLock<Lock> guard(&lock);
    return L"AbstractConnectionPolicy{indexOfLastAttempted=" +
           std::to_wstring(indexOfLastAttempted) + L",indexOfLastSuccessful=" +
           std::to_wstring(indexOfLastSuccessful) + L"}";
}

}  // namespace vorn_std
