#pragma once

#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std {

// An event for host code that waits through the platform's own calls, not a
// Waitable: on Linux an eventfd (non-blocking, close-on-exec) whose counter is
// 1 when created signalled. Wait for it with poll/epoll (readable means
// signalled), signal it by writing a count with write(2), reset it by reading.
class VORNSTD_API SmartEvent : public Object {
public:
    SmartEvent(bool manualReset, bool initialState);
    ~SmartEvent() override;
    SmartEvent(const SmartEvent&) = delete;
    SmartEvent& operator=(const SmartEvent&) = delete;

    std::wstring toString() const override;
    // The descriptor, or -1 if the system refused one.
    int getHandle() const { return handle; }
    bool isManualReset() const { return manualReset; }

private:
    int handle;
    bool manualReset;
};

}  // namespace vorn_std
