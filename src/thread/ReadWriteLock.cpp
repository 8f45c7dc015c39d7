#include "vorn_std/thread/ReadWriteLock.h"

#include "internal/ReadWriteLockPimpl.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"

namespace vorn_std {

namespace {
constexpr const wchar_t* TooFewReadersText =
    L"Maximum number of simultaneous readers must not be less than one.";
}

ReadWriteLock::ReadWriteLock(int maxReaders) {
    if (maxReaders < 1) {
        throw VornIllegalArgumentException(TooFewReadersText);
    }
    pimpl = std::make_shared<vorn_std_internal::ReadWriteLockPimpl>(maxReaders);
}

ReadWriteLock::~ReadWriteLock() = default;

void ReadWriteLock::readLock() { pimpl->readLock(); }
void ReadWriteLock::readUnlock() { pimpl->readUnlock(); }
void ReadWriteLock::writeLock() { pimpl->writeLock(); }
void ReadWriteLock::writeUnlock() { pimpl->writeUnlock(); }

std::wstring ReadWriteLock::toString() const {
    return L"ReadWriteLock{maxReaders='" + std::to_wstring(pimpl->getMaxReaders()) + L"'}";
}

ReadWriteLock::ReaderLock::ReaderLock(ReadWriteLock* lock) : lock(lock) { lock->readLock(); }
ReadWriteLock::ReaderLock::~ReaderLock() { lock->readUnlock(); }

ReadWriteLock::WriterLock::WriterLock(ReadWriteLock* lock) : lock(lock) { lock->writeLock(); }
ReadWriteLock::WriterLock::~WriterLock() { lock->writeUnlock(); }

}  // namespace vorn_std
