#include "vorn_std/thread/Semaphore.h"

#include <cxxabi.h>
#include <semaphore.h>

#include <cerrno>
#include <climits>

#include "internal/SemaphorePimpl.h"
#include "vorn_std/exception/VornDeadlockException.h"
#include "vorn_std/exception/VornIllegalStateException.h"
#include "vorn_std/exception/VornUnknownException.h"
#include "vorn_std/exception/VornUnsupportedOperationException.h"

namespace vorn_std_internal {

int SemaphorePimpl::wait() {
    int result;
    while ((result = sem_wait(&semaphore)) != 0 && errno == EINTR) {
    }
    return result;
}

}  // namespace vorn_std_internal

namespace vorn_std {

namespace {

constexpr const wchar_t* InvalidStateText =
    L"The semaphore was in an invalid state, check that it has been initialized.";
constexpr const wchar_t* DeadlockText = L"A deadlock condition was detected.";
constexpr const wchar_t* UnsupportedText =
    L"The functions are not supported by this implementation.";
constexpr const wchar_t* UnknownFailureText =
    L"Operation failed for unknown reason (errno was not set)";

// Raises the exception of a failed call's errno, where one is defined.
void checkErrno(int error) {
    switch (error) {
        case EINVAL: throw VornIllegalStateException(InvalidStateText, EINVAL);
        case EDEADLK: throw VornDeadlockException(DeadlockText, EDEADLK);
        case ENOSYS: throw VornUnsupportedOperationException(UnsupportedText, ENOSYS);
        default: break;
    }
}

void checkResult(int result) {
    if (result == -1) {
        checkErrno(errno);
        throw VornUnknownException(UnknownFailureText);
    }
}

unsigned int initialCount(long initialValue) {
    if (initialValue < 0) {
        return 0;
    }
    return initialValue > SEM_VALUE_MAX ? SEM_VALUE_MAX : static_cast<unsigned int>(initialValue);
}

}  // namespace

Semaphore::Semaphore(long initialValue)
    : Waitable(true, initialCount(initialValue) >= 1),
      semaphore(std::make_shared<vorn_std_internal::SemaphorePimpl>(initialCount(initialValue))) {}

Semaphore::~Semaphore() = default;

std::wstring Semaphore::toString() const {
    return L"Semaphore{value=" + std::to_wstring(getValue()) + L"}";
}

void Semaphore::increment() {
    checkResult(semaphore->post());
    Waitable::signal();
}

void Semaphore::decrement() { checkResult(semaphore->wait()); }

bool Semaphore::tryDecrement() {
    if (semaphore->tryWait() == 0) {
        return true;
    }
    checkErrno(errno);
    return false;
}

int Semaphore::getValue() const {
    int value = 0;
    checkResult(semaphore->getValue(&value));
    return value;
}

void Semaphore::operator++(int) {
    try {
        increment();
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (...) {
    }
}

void Semaphore::operator--(int) {
    try {
        decrement();
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (...) {
    }
}

}  // namespace vorn_std
