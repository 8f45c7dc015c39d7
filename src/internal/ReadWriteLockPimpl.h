#pragma once

#include <pthread.h>
#include <semaphore.h>

#include <atomic>
#include <cstdint>
#include <map>

namespace vorn_std_internal {

// The state of one ReadWriteLock: a counting semaphore with one permit per
// reader (a writer drains them all) and three mutexes.
//
// Lock order: writerEntry before readerGate. tableMutex is a leaf: it is
// never held while taking either of the others or while waiting for a permit.
class ReadWriteLockPimpl {
public:
    explicit ReadWriteLockPimpl(int maxReaders);
    virtual ~ReadWriteLockPimpl();
    ReadWriteLockPimpl(const ReadWriteLockPimpl&) = delete;
    ReadWriteLockPimpl& operator=(const ReadWriteLockPimpl&) = delete;

    void readLock();
    void readUnlock();
    void writeLock();
    void writeUnlock();

    int getMaxReaders() const { return maxReaders; }

private:
    bool callerIsWriter(unsigned long long self) const;
    void takePermit();
    void postPermits(int count);

    sem_t readerPermits;
    pthread_mutex_t writerEntry;
    pthread_mutex_t readerGate;
    pthread_mutex_t tableMutex;
    std::map<unsigned long long, uint32_t> readerCounts;  // guarded by tableMutex
    // Read without a lock by threads asking "am I the writer?": one atomic
    // word, so a former owner can never see a torn value.
    std::atomic<unsigned long long> writerThread;
    uint32_t writerRecursion;  // touched by the writer only
    const int maxReaders;
};

}  // namespace vorn_std_internal
