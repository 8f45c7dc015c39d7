// Hex decoding of arbitrary text, narrow and wide, into arrays and buffers.
#include <cstdint>
#include <string>

#include "FuzzCheck.h"
#include "vorn_std/base/ByteArray.h"
#include "vorn_std/base/ByteBuffer.h"
#include "vorn_std/base/EncodingUtils.h"

using vorn_std::ByteArray;
using vorn_std::EncodingUtils;

FUZZ_QUIET_DEBUG_OUTPUT()

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::wstring wide(data, data + size);
    const auto narrowBytes = EncodingUtils::hexStringToByteArray(text);
    const auto wideBytes = EncodingUtils::hexStringToByteArray(wide);
    const auto buffer = EncodingUtils::hexStringToByteBuffer(text);
    const bool decodable = size > 0 && size % 2 == 0;
    FUZZ_CHECK((narrowBytes != nullptr) == decodable);
    FUZZ_CHECK((wideBytes != nullptr) == decodable);
    FUZZ_CHECK((buffer != nullptr) == decodable);
    if (decodable) {
        FUZZ_CHECK(static_cast<size_t>(narrowBytes->getLength()) == size / 2);
        FUZZ_CHECK(*narrowBytes == *wideBytes);
        FUZZ_CHECK(buffer->getPosition() == 0 && buffer->getLimit() == narrowBytes->getLength());
        FUZZ_CHECK(EncodingUtils::toHexString(*buffer) == EncodingUtils::toHexString(*narrowBytes));
        FUZZ_CHECK(buffer->getPosition() == 0);
    }

    const ByteArray binary(text);
    const std::wstring hex = EncodingUtils::toHexString(binary);
    FUZZ_CHECK(hex.size() == 2 * size);
    if (size > 0) {
        FUZZ_CHECK(*EncodingUtils::hexStringToByteArray(hex) == binary);
    }
    return 0;
}
