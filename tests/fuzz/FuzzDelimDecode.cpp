// Decimal numbers joined by "-": arbitrary text, narrow and wide.
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
    const auto narrowBytes = EncodingUtils::delimStringToByteArray(text);
    const auto wideBytes = EncodingUtils::delimStringToByteArray(wide);
    const auto buffer = EncodingUtils::delimStringToByteBuffer(text);
    FUZZ_CHECK((narrowBytes == nullptr) == (size == 0));
    FUZZ_CHECK((wideBytes == nullptr) == (size == 0));
    FUZZ_CHECK((buffer == nullptr) == (size == 0));
    if (size > 0) {
        FUZZ_CHECK(*narrowBytes == *wideBytes);
        FUZZ_CHECK(buffer->getLimit() == narrowBytes->getLength());
        FUZZ_CHECK(EncodingUtils::toDelimString(*buffer) ==
                   EncodingUtils::toDelimString(*narrowBytes));
        // At most one byte for each number, and a number needs a digit.
        FUZZ_CHECK(static_cast<size_t>(narrowBytes->getLength()) <= (size + 1) / 2);
    }

    const ByteArray binary(text);
    const std::wstring delimited = EncodingUtils::toDelimString(binary);
    if (size > 0) {
        FUZZ_CHECK(*EncodingUtils::delimStringToByteArray(delimited) == binary);
    }
    return 0;
}
