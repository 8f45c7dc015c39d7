#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <vector>

#include "internal/CodePageConverter.h"

namespace vorn_std_internal {

namespace {

struct CodePageCharset {
    unsigned int codePage;
    const char* charset;
};

constexpr CodePageCharset CodePageCharsets[] = {
    {1252, "WINDOWS-1252"}, {1251, "WINDOWS-1251"}, {932, "SHIFT_JIS"}, {936, "GBK"},
    {949, "CP949"},         {950, "BIG5"},          {65001, "UTF-8"},
};
constexpr unsigned int SystemCodePage = 0;
constexpr const char* Utf8Charset = "UTF-8";
// glibc's name for the codeset of the C and POSIX locales.
constexpr const char* AsciiCodeset = "ANSI_X3.4-1968";
constexpr const char* Windows1252Names[] = {"WINDOWS-1252", "CP1252"};
// Code points travel through iconv as UTF-32 in a fixed order, so that the
// bytes can be assembled without regard to the machine's order.
constexpr const char* CodePointCharset = "UTF-32LE";
constexpr size_t CodePointBytes = 4;
constexpr unsigned char Windows1252Unassigned[] = {0x81, 0x8D, 0x8F, 0x90, 0x9D};
constexpr char Unconvertible = '?';
constexpr size_t ChunkBytes = 512;

class Iconv {
public:
    Iconv(const std::string& to, const std::string& from)
        : handle(::iconv_open(to.c_str(), from.c_str())) {}
    ~Iconv() {
        if (isOpen()) {
            ::iconv_close(handle);
        }
    }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;

    bool isOpen() const { return handle != reinterpret_cast<iconv_t>(-1); }

    // Converts what it can of the input into out, advancing the input; the
    // errno of the first failure, or 0 once all the input is converted.
    int convert(const char*& in, size_t& inLeft, std::string& out) {
        char chunk[ChunkBytes];
        for (;;) {
            char* inPointer = const_cast<char*>(in);
            char* outPointer = chunk;
            size_t outLeft = sizeof chunk;
            const size_t result = ::iconv(handle, in != nullptr ? &inPointer : nullptr, &inLeft,
                                          &outPointer, &outLeft);
            const int error = result == static_cast<size_t>(-1) ? errno : 0;
            if (in != nullptr) {
                in = inPointer;
            }
            out.append(chunk, static_cast<size_t>(outPointer - chunk));
            if (error != E2BIG) {
                return error;
            }
        }
    }

    // Brings a stateful target back to its initial state.
    void finish(std::string& out) {
        const char* none = nullptr;
        size_t noneLeft = 0;
        convert(none, noneLeft, out);
    }

private:
    iconv_t handle;
};

std::string systemCharset() {
    const locale_t locale = ::newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(0));
    if (locale == static_cast<locale_t>(0)) {
        return Utf8Charset;
    }
    const std::string codeset = ::nl_langinfo_l(CODESET, locale);
    ::freelocale(locale);
    // A process that never set a locale would otherwise lose every non-ASCII character.
    return codeset.empty() || codeset == AsciiCodeset ? Utf8Charset : codeset;
}

std::string charsetOf(unsigned int codePage) {
    if (codePage == SystemCodePage) {
        return systemCharset();
    }
    for (const CodePageCharset& entry : CodePageCharsets) {
        if (entry.codePage == codePage) {
            return entry.charset;
        }
    }
    return std::string();
}

bool isWindows1252(const std::string& charset) {
    std::string name = charset;
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return std::find(std::begin(Windows1252Names), std::end(Windows1252Names), name) !=
           std::end(Windows1252Names);
}

bool isWindows1252Unassigned(uint32_t value) {
    return std::find(std::begin(Windows1252Unassigned), std::end(Windows1252Unassigned), value) !=
           std::end(Windows1252Unassigned);
}

bool isHighSurrogate(uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// The UTF-16 units up to the first zero as UTF-32LE bytes. A lone surrogate
// stays as it is, for iconv to refuse like any other character it lacks.
std::string toCodePointBytes(const std::wstring& text) {
    std::string bytes;
    bytes.reserve(text.size() * CodePointBytes);
    for (size_t i = 0; i < text.size() && text[i] != L'\0'; ++i) {
        uint32_t value = static_cast<uint16_t>(text[i]);
        if (isHighSurrogate(value) && i + 1 < text.size() &&
            isLowSurrogate(static_cast<uint16_t>(text[i + 1]))) {
            const uint32_t low = static_cast<uint16_t>(text[++i]);
            value = 0x10000 + ((value - 0xD800) << 10) + (low - 0xDC00);
        }
        for (size_t k = 0; k < CodePointBytes; ++k) {
            bytes += static_cast<char>(value >> (8 * k));
        }
    }
    return bytes;
}

uint32_t codePointAt(const char* bytes) {
    uint32_t value = 0;
    for (size_t k = 0; k < CodePointBytes; ++k) {
        value |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[k])) << (8 * k);
    }
    return value;
}

void appendUnits(std::wstring& text, uint32_t codePoint) {
    if (codePoint < 0x10000) {
        text += static_cast<wchar_t>(codePoint);
    } else {
        codePoint -= 0x10000;
        text += static_cast<wchar_t>(0xD800 + (codePoint >> 10));
        text += static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
    }
}

}  // namespace

std::string CodePageConverter::fromUnicode(const std::wstring& text, unsigned int codePage) {
    const std::string charset = charsetOf(codePage);
    if (charset.empty()) {
        return std::string();
    }
    Iconv converter(charset, CodePointCharset);
    if (!converter.isOpen()) {
        return std::string();
    }
    const bool windows1252 = isWindows1252(charset);
    const std::string codePoints = toCodePointBytes(text);
    const char* in = codePoints.data();
    size_t inLeft = codePoints.size();
    std::string out;
    while (inLeft > 0) {
        if (converter.convert(in, inLeft, out) == 0 || inLeft < CodePointBytes) {
            break;
        }
        const uint32_t refused = codePointAt(in);
        out += windows1252 && isWindows1252Unassigned(refused) ? static_cast<char>(refused)
                                                               : Unconvertible;
        in += CodePointBytes;
        inLeft -= CodePointBytes;
    }
    converter.finish(out);
    return out;
}

std::wstring CodePageConverter::toUnicode(const std::string& bytes, unsigned int codePage) {
    const std::string charset = charsetOf(codePage);
    if (charset.empty()) {
        return std::wstring();
    }
    Iconv converter(CodePointCharset, charset);
    if (!converter.isOpen()) {
        return std::wstring();
    }
    const bool windows1252 = isWindows1252(charset);
    const char* in = bytes.c_str();
    size_t inLeft = std::strlen(in);
    std::string codePoints;
    while (inLeft > 0) {
        const int error = converter.convert(in, inLeft, codePoints);
        if (error == 0) {
            break;
        }
        const unsigned char refused = static_cast<unsigned char>(*in);
        const uint32_t replacement =
            windows1252 && isWindows1252Unassigned(refused) ? refused : Unconvertible;
        for (size_t k = 0; k < CodePointBytes; ++k) {
            codePoints += static_cast<char>(replacement >> (8 * k));
        }
        if (error != EILSEQ) {
            break;  // an incomplete character at the end: nothing more follows
        }
        ++in;
        --inLeft;
    }
    std::wstring text;
    text.reserve(codePoints.size() / CodePointBytes);
    for (size_t i = 0; i + CodePointBytes <= codePoints.size(); i += CodePointBytes) {
        appendUnits(text, codePointAt(&codePoints[i]));
    }
    return text;
}

}  // namespace vorn_std_internal
