#pragma once

#include <cstdint>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// The order of the bytes of a multi-byte value. The underlying type is fixed
// so that any number may be held, and refused where an order is set.
enum class Endian : int { Big = 0, Little = 1 };

// The order of this machine, fixed when the library was built.
VORNSTD_API Endian getSystemEndianType();

VORNSTD_API uint16_t byteSwap16(uint16_t value);
VORNSTD_API uint32_t byteSwap32(uint32_t value);
VORNSTD_API uint64_t byteSwap64(uint64_t value);

}  // namespace vorn_std
