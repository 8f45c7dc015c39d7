#include "vorn_std/base/StringUtils.h"

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <locale>
#include <new>
#include <sstream>

#include "vorn_std/base/ByteArray.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/exception/VornOutOfResourcesException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* NullFormatText = L"Format string cannot be null!";
constexpr const wchar_t* NoMemoryText = L"Unable to allocate enough memory to print log statement.";
constexpr const wchar_t* FormatFailedText = L"Unable to format string: ";
constexpr size_t InitialRoom = 256;
constexpr const wchar_t* NullText = L"NULL";
constexpr const wchar_t* WhiteSpace = L" \t\n\v\f\r";
constexpr const wchar_t* Digits = L"0123456789";
constexpr const wchar_t* HexadecimalDigits = L"0123456789ABCDEFabcdef";
constexpr const wchar_t* CrLf = L"\r\n";
constexpr const wchar_t* Cr = L"\r";
constexpr const wchar_t* Lf = L"\n";

struct SizeUnit {
    const wchar_t* name;
    double bytes;
};
// Looked for in this order, each from the right.
constexpr SizeUnit SizeUnits[] = {
    {L"GB", 1073741824.0},
    {L"MB", 1048576.0},
    {L"KB", 1024.0},
};
constexpr size_t UnitLength = 2;

// Formats into a stream that grows as needed. Unlike a bounded buffer, its
// only failure is a real one (an argument that does not convert), which
// vswprintf cannot tell apart from "too small".
bool formatUnbounded(std::wstring& out, const wchar_t* format, va_list args) {
    wchar_t* buffer = nullptr;
    size_t size = 0;
    FILE* stream = open_wmemstream(&buffer, &size);
    if (stream == nullptr) {
        throw std::bad_alloc();
    }
    const int written = vfwprintf(stream, format, args);
    const int closed = fclose(stream);
    const bool ok = written >= 0 && closed == 0;
    if (ok) {
        out.append(buffer, size);
    }
    free(buffer);
    return ok;
}

// True if the text fitted in the first, small attempt; false if a larger one is needed.
// Throws for a failure that more room cannot mend.
bool formatBounded(std::wstring& out, const wchar_t* format, va_list args) {
    wchar_t buffer[InitialRoom];
    errno = 0;
    const int written = vswprintf(buffer, InitialRoom, format, args);
    if (written >= 0) {
        out.append(buffer, static_cast<size_t>(written));
        return true;
    }
    if (errno == EILSEQ || errno == EINVAL) {
        throw VornIllegalArgumentException(std::wstring(FormatFailedText) + format);
    }
    return false;
}

std::wstring trimRight(const std::wstring& text) {
    const size_t end = text.find_last_not_of(WhiteSpace);
    return end == std::wstring::npos ? std::wstring() : text.substr(0, end + 1);
}

std::wstring trimBoth(const std::wstring& text) {
    const size_t begin = text.find_first_not_of(WhiteSpace);
    return begin == std::wstring::npos ? std::wstring() : trimRight(text.substr(begin));
}

// Converting a double outside the range of int64_t is undefined: saturate first.
int64_t saturatedInt64(double value) {
    constexpr double Limit = 9223372036854775808.0;  // 2^63, exact in a double
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= Limit) {
        return INT64_MAX;
    }
    if (value < -Limit) {
        return INT64_MIN;
    }
    return static_cast<int64_t>(value);
}

int limitedSize(int64_t size) {
    if (size < 0) {
        return static_cast<int32_t>(static_cast<uint32_t>(size));
    }
    return size > INT32_MAX ? INT32_MAX : static_cast<int>(size);
}

}  // namespace

void StringUtils::sprintfStringAppend(std::wstring& out, const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        sprintfStringAppendVA(out, args, format);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void StringUtils::sprintfStringAppendVA(std::wstring& out, va_list args, const wchar_t* format) {
    if (format == nullptr) {
        throw VornIllegalArgumentException(NullFormatText);
    }
    // Each attempt consumes its own copy: a va_list cannot be walked twice.
    try {
        va_list attempt;
        va_copy(attempt, args);
        const bool fitted = formatBounded(out, format, attempt);
        va_end(attempt);
        if (fitted) {
            return;
        }
        va_copy(attempt, args);
        const bool formatted = formatUnbounded(out, format, attempt);
        va_end(attempt);
        if (!formatted) {
            throw VornIllegalArgumentException(std::wstring(FormatFailedText) + format);
        }
    } catch (const std::bad_alloc&) {
        throw VornOutOfResourcesException(NoMemoryText);
    }
}

bool StringUtils::hasPrefix(const std::wstring& text, const std::wstring& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

std::wstring StringUtils::trimPrefix(const std::wstring& text, const std::wstring& prefix) {
    return hasPrefix(text, prefix) ? text.substr(prefix.size()) : std::wstring();
}

std::wstring StringUtils::trimString(std::wstring& text) {
    text = trimRight(text);
    return text;
}

bool StringUtils::isDigits(const std::wstring& text) {
    return text.find_first_not_of(Digits) == std::wstring::npos;
}

bool StringUtils::isHexadecimal(const std::wstring& text) {
    return text.find_first_not_of(HexadecimalDigits) == std::wstring::npos;
}

std::wstring StringUtils::nullCheckedString(const wchar_t* text) {
    return text != nullptr ? std::wstring(text) : std::wstring(NullText);
}

std::vector<std::wstring> StringUtils::getLines(const ByteArray& bytes,
                                                const std::wstring& charset) {
    // CR LF, then a lone CR, count as LF; one pass, so a long text costs its length.
    const std::wstring text = bytes.toWString(charset);
    std::vector<std::wstring> lines;
    size_t begin = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\r' || text[i] == L'\n') {
            lines.push_back(text.substr(begin, i - begin));
            if (text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') {
                ++i;
            }
            begin = i + 1;
        }
    }
    lines.push_back(text.substr(begin));
    return lines;
}

std::wstring StringUtils::getLineSeparator(const ByteArray& bytes, const std::wstring& charset) {
    const std::wstring text = bytes.toWString(charset);
    // On a tie the earlier candidate stays: CR LF before CR.
    std::wstring separator;
    size_t lowest = std::wstring::npos;
    for (const wchar_t* candidate : {CrLf, Cr, Lf}) {
        const size_t at = text.find(candidate);
        if (at < lowest) {
            lowest = at;
            separator = candidate;
        }
    }
    return separator;
}

int StringUtils::convertSizeString(const std::wstring& text, int defaultValue) {
    std::wstring size = trimBoth(text);
    for (wchar_t& c : size) {
        if (c >= L'a' && c <= L'z') {
            c = static_cast<wchar_t>(c - L'a' + L'A');
        }
    }
    if (size.empty()) {
        return defaultValue;
    }
    double multiplier = 1.0;
    if (size.size() > UnitLength) {
        for (const SizeUnit& unit : SizeUnits) {
            if (size.rfind(unit.name) != std::wstring::npos) {
                multiplier = unit.bytes;
                // The unit may stand anywhere; the last two characters go regardless.
                size = trimBoth(size.substr(0, size.size() - UnitLength));
                break;
            }
        }
    }
    // A stream reads the leading number and ignores what follows it.
    std::wistringstream stream(size);
    stream.imbue(std::locale::classic());
    double number = 0.0;
    if (!(stream >> number)) {
        number = defaultValue;
    }
    return limitedSize(saturatedInt64(number * multiplier));
}

}  // namespace vorn_std
