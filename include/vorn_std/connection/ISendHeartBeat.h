#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Proves an idle connection alive; runs on the manager's recovery thread
// without the manager's lock.
class VORNSTD_API ISendHeartBeat {
public:
    virtual std::wstring toString() const = 0;
    // Throws VornConnectException if the connection is dead; any other
    // failure leaves the connection's state alone.
    virtual void sendHeartBeat() = 0;

protected:
    ~ISendHeartBeat() = default;
};

}  // namespace vorn_std
