#pragma once

#include <cstdint>

#include "vorn_std/thread/AtomicValue.h"

namespace vorn_std {

// A lock-protected signed 32-bit counter.
class VORNSTD_API AtomicInteger : public AtomicValue<int32_t> {
public:
    AtomicInteger() = default;
    explicit AtomicInteger(int32_t initialValue) : AtomicValue(initialValue) {}
    std::wstring toString() const override;
};

}  // namespace vorn_std
