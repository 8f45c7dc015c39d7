#include "vorn_std/base/StringUtils.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <new>

#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/exception/VornOutOfResourcesException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* NullFormatText = L"Format string cannot be null!";
constexpr const wchar_t* NoMemoryText = L"Unable to allocate enough memory to print log statement.";
constexpr const wchar_t* FormatFailedText = L"Unable to format string: ";
constexpr size_t InitialRoom = 256;

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

}  // namespace vorn_std
