#include "internal/PlatformText.h"

#include <cstdint>

namespace vorn_std_internal {

namespace {

constexpr uint32_t ReplacementCharacter = 0xFFFD;

bool isHighSurrogate(uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool isEscapedByte(uint32_t unit) { return unit >= 0xDC80 && unit <= 0xDCFF; }

void appendUtf8(std::string& out, uint32_t codePoint) {
    if (codePoint < 0x80) {
        out += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        out += static_cast<char>(0xC0 | (codePoint >> 6));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        out += static_cast<char>(0xE0 | (codePoint >> 12));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (codePoint >> 18));
        out += static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
}

void appendUtf16(std::wstring& out, uint32_t codePoint) {
    if (codePoint < 0x10000) {
        out += static_cast<wchar_t>(codePoint);
    } else {
        codePoint -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (codePoint >> 10));
        out += static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
    }
}

// Length of the well-formed UTF-8 sequence at bytes[i], or 0 if there is none.
size_t decodeSequence(const std::string& bytes, size_t i, uint32_t& codePoint) {
    const auto byte = [&](size_t k) { return static_cast<uint8_t>(bytes[k]); };
    const uint8_t lead = byte(i);
    size_t length;
    uint32_t minimum;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, minimum = 0x80, codePoint = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, minimum = 0x800, codePoint = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, minimum = 0x10000, codePoint = lead & 0x07;
    } else {
        return 0;
    }
    if (i + length > bytes.size()) {
        return 0;
    }
    for (size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80) {
            return 0;
        }
        codePoint = (codePoint << 6) | (byte(i + k) & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < minimum || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

}  // namespace

std::string toPlatformUtf8(const std::wstring& text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const uint32_t unit = static_cast<uint32_t>(text[i]) & 0xFFFF;
        if (isHighSurrogate(unit) && i + 1 < text.size() &&
            isLowSurrogate(static_cast<uint32_t>(text[i + 1]) & 0xFFFF)) {
            const uint32_t low = static_cast<uint32_t>(text[++i]) & 0xFFFF;
            appendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
        } else if (isEscapedByte(unit)) {
            out += static_cast<char>(unit - 0xDC00);
        } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
            appendUtf8(out, ReplacementCharacter);
        } else {
            appendUtf8(out, unit);
        }
    }
    return out;
}

std::wstring fromPlatformUtf8(const std::string& bytes) {
    std::wstring out;
    out.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        uint32_t codePoint = 0;
        const size_t length = decodeSequence(bytes, i, codePoint);
        if (length == 0) {
            const uint8_t byte = static_cast<uint8_t>(bytes[i++]);
            out += static_cast<wchar_t>(byte < 0x80 ? byte : 0xDC00 + byte);
        } else {
            appendUtf16(out, codePoint);
            i += length;
        }
    }
    return out;
}

}  // namespace vorn_std_internal
