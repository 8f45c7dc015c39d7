#include "vorn_std/base/ByteOrder.h"

namespace vorn_std {

namespace {

// Constant-initialised: ready before any load step can ask.
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr Endian SystemEndian = Endian::Big;
#else
constexpr Endian SystemEndian = Endian::Little;
#endif

}  // namespace

Endian getSystemEndianType() { return SystemEndian; }

uint16_t byteSwap16(uint16_t value) { return static_cast<uint16_t>((value >> 8) | (value << 8)); }

uint32_t byteSwap32(uint32_t value) {
    return (value >> 24) | ((value >> 8) & 0x0000FF00u) | ((value << 8) & 0x00FF0000u) |
           (value << 24);
}

uint64_t byteSwap64(uint64_t value) {
    return (static_cast<uint64_t>(byteSwap32(static_cast<uint32_t>(value))) << 32) |
           byteSwap32(static_cast<uint32_t>(value >> 32));
}

}  // namespace vorn_std
