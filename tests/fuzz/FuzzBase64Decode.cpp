// Base64 decoding of arbitrary text, and encoding of arbitrary bytes.
#include <cstdint>
#include <string>

#include "FuzzCheck.h"
#include "vorn_std/base/Base64Utils.h"
#include "vorn_std/base/ByteArray.h"

using vorn_std::Base64Utils;
using vorn_std::ByteArray;

FUZZ_QUIET_DEBUG_OUTPUT()

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string decoded = Base64Utils::base64ToMbcs(text);
    const auto bytes = Base64Utils::base64ToByteArray(text);
    if (bytes) {
        FUZZ_CHECK(Base64Utils::isBase64String(text));
        FUZZ_CHECK(bytes->toString() == decoded);
        FUZZ_CHECK(bytes->getLength() < Base64Utils::getMbcsStringLength(text));
        const std::string encoded = Base64Utils::byteArrayToBase64(*bytes);
        const auto back = Base64Utils::base64ToByteArray(encoded);
        FUZZ_CHECK(back != nullptr && *back == *bytes);
    } else {
        FUZZ_CHECK(decoded.empty());
    }

    const ByteArray binary(text);
    const std::string encoded = Base64Utils::byteArrayToBase64(binary);
    FUZZ_CHECK(static_cast<long>(encoded.size()) < Base64Utils::getBase64StringLength(binary));
    const auto back = Base64Utils::base64ToByteArray(encoded);
    FUZZ_CHECK(back != nullptr && *back == binary);
    return 0;
}
