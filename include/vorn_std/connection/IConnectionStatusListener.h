#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Told of each change of a manager's connection, in order, on the manager's
// notification thread, with no manager lock held. Must not call the
// manager's shutdown(), which waits for this very thread.
class VORNSTD_API IConnectionStatusListener {
public:
    virtual std::wstring toString() const = 0;
    virtual void statusChanged(bool isUp, const std::wstring& host) = 0;

protected:
    ~IConnectionStatusListener() = default;
};

}  // namespace vorn_std
