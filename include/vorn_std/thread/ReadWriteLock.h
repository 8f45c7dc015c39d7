#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std_internal {
class ReadWriteLockPimpl;
}

namespace vorn_std {

// A many-readers lock with a bounded number of readers, recursive on both
// sides. A writer may also read (taking no permit), and a writer that reads
// and then gives up its write hold is left a plain reader (a downgrade). A
// reader that asks to write gives up its read hold first: the upgrade is not
// atomic, and another writer may run in between. Waiting writers have
// preference over readers that have not yet taken a permit.
//
// Any thread may call; readLock and writeLock block without limit.
// Built on POSIX objects only, so that every exception can hold one.
class VORNSTD_API ReadWriteLock : public Object {
public:
    static constexpr int DefaultReaderCount = 32;

    explicit ReadWriteLock(int maxReaders = DefaultReaderCount);
    ~ReadWriteLock() override;
    ReadWriteLock(const ReadWriteLock&) = delete;
    ReadWriteLock& operator=(const ReadWriteLock&) = delete;

    // Throws VornOutOfResourcesException at the per-thread recursion limit.
    void readLock();
    // Throws VornAccessException if the caller holds no read lock.
    void readUnlock();
    // Throws VornOutOfResourcesException at the recursion limit.
    void writeLock();
    // Throws VornAccessException if the caller is not the writer.
    void writeUnlock();

    std::wstring toString() const override;

    class VORNSTD_API ReaderLock {
    public:
        explicit ReaderLock(ReadWriteLock* lock);
        virtual ~ReaderLock();
        ReaderLock(const ReaderLock&) = delete;
        ReaderLock& operator=(const ReaderLock&) = delete;

    private:
        ReadWriteLock* lock;
    };

    class VORNSTD_API WriterLock {
    public:
        explicit WriterLock(ReadWriteLock* lock);
        virtual ~WriterLock();
        WriterLock(const WriterLock&) = delete;
        WriterLock& operator=(const WriterLock&) = delete;

    private:
        ReadWriteLock* lock;
    };

private:
    std::shared_ptr<vorn_std_internal::ReadWriteLockPimpl> pimpl;
};

}  // namespace vorn_std
