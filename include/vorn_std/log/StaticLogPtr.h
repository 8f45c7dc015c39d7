#pragma once

#include "vorn_std/base/Export.h"

namespace vorn_std {

class Lock;
class StaticLog;

// Holds the static log's instance for the length of a scope: its
// construction (or reset) takes the log's singleton lock, then the
// instance's lock; destruction releases them in reverse order. Copying moves
// the pointer and the duty of unlocking to the copy, leaving the source empty.
class VORNSTD_API StaticLogPtr {
public:
    StaticLogPtr();
    explicit StaticLogPtr(StaticLog* instance);
    StaticLogPtr(StaticLogPtr& other);
    StaticLogPtr& operator=(StaticLogPtr& other);
    ~StaticLogPtr();

    void reset(StaticLog* instance);
    StaticLog* operator->() const { return instance; }
    explicit operator bool() const { return instance != nullptr; }

private:
    void release();

    StaticLog* instance;
    Lock* singletonLock;  // the one taken, kept: unload may clear the log's pointer
};

}  // namespace vorn_std
