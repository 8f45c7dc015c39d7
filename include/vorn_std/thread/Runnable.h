#pragma once

#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std {

// Work for a Thread.
class VORNSTD_API Runnable : public Object {
public:
    ~Runnable() override;
    std::wstring toString() const override;
    virtual void run() = 0;
};

}  // namespace vorn_std
