#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// The host's side of a ConnectionManager: it knows its list of equivalent
// services and how to reach one. Called with the manager's lock held.
class VORNSTD_API IConnectionImplementer {
public:
    virtual std::wstring toString() const = 0;
    // Selects position index of the service list and returns its host text.
    // Throws VornObjectNotFoundException if the position does not exist.
    virtual std::wstring useServiceConnectionInfo(int index) = 0;
    // Throws VornConnectException on failure.
    virtual void establishConnection() = 0;
    virtual void disconnectConnection() = 0;

protected:
    ~IConnectionImplementer() = default;
};

}  // namespace vorn_std
