#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

class ByteArray;

// Base64 of RFC 4648 with "=" padding and no line breaks. Decoding skips ASCII
// white space anywhere and is strict about everything else: the character
// count, the padding, and (when the bytes are wanted) the unused bits of the
// last character. A failure writes a debug line and gives the empty string
// (or a null ByteArray); nothing throws. Reentrant.
//
// The string forms treat their input as zero-terminated and stop at the first
// zero byte; binary data is encoded through the ByteArray form.
class VORNSTD_API Base64Utils {
public:
    Base64Utils() = delete;

    static std::string mbcsToBase64(const std::string& bytes);
    static std::string base64ToMbcs(const std::string& text);
    static std::string byteArrayToBase64(const ByteArray& bytes);
    // Null on failure.
    static std::shared_ptr<ByteArray> base64ToByteArray(const std::string& text);
    // Whether the text decodes; the unused bits are not looked at.
    static bool isBase64String(const std::string& text);
    // Upper bounds of the converted sizes, terminator included:
    // size / 3 * 4 + 5 and size / 4 * 3 + 1.
    static long getBase64StringLength(const std::string& bytes);
    static long getBase64StringLength(const ByteArray& bytes);
    static long getMbcsStringLength(const std::string& text);
};

}  // namespace vorn_std
