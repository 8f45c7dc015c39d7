#pragma once

#include <cstdint>

#include "vorn_std/thread/AtomicValue.h"

namespace vorn_std {

// A lock-protected unsigned 64-bit counter.
class VORNSTD_API AtomicLong : public AtomicValue<uint64_t> {
public:
    AtomicLong() = default;
    explicit AtomicLong(uint64_t initialValue) : AtomicValue(initialValue) {}
    std::wstring toString() const override;
};

}  // namespace vorn_std
