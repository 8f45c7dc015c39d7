#include "vorn_std/legacy/LegacyFunctions.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <memory>
#include <mutex>
#include <string>

#include "internal/LegacyFileSystem.h"
#include "internal/PlatformText.h"
#include "internal/SystemErrorText.h"
#include "internal/Trace.h"
#include "vorn_std/base/EncodingUtils.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/system/VornSystem.h"
#include "vorn_std/thread/Thread.h"
#include "vorn_std/thread/TimeUtils.h"

namespace VornStd {

using vorn_std::EncodingUtils;
using vorn_std::StringUtils;
using vorn_std_internal::fromPlatformUtf8;
using vorn_std_internal::toPlatformUtf8;
namespace LegacyFileSystem = vorn_std_internal::LegacyFileSystem;

namespace {

constexpr unsigned int SystemCodePage = 0;
constexpr const char* WhiteSpace = " \t\n\v\f\r";
constexpr const wchar_t* WideWhiteSpace = L" \t\n\v\f\r";

constexpr int EndOfOptions = 0;
constexpr int NotAnOption = 1;
constexpr int UnknownOption = 65535;
constexpr wchar_t ArgumentMark = L':';

constexpr int OctalBase = 8;
constexpr int HexadecimalBase = 16;
constexpr const wchar_t* OctalFormat = L"%o ";
constexpr const wchar_t* HexadecimalFormat = L"%x ";
constexpr const wchar_t* DecimalFormat = L"%u ";
constexpr wchar_t Quote = L'"';
constexpr wchar_t Unprintable = L'.';

constexpr const wchar_t* LongFormat = L"%ld";
constexpr const wchar_t* ShortCodeFormat = L"%04d";
constexpr const wchar_t* LongCodeFormat = L"%d";
constexpr int LargestShortCode = 9999;
constexpr const wchar_t* UnexpectedErrorText = L"An unexpected error occurred.";

constexpr size_t FileCopyBlock = 1024;
constexpr size_t CopyOverBlock = 512;
constexpr long FirstRetryDelayMs = 1;
constexpr long RetryBudgetMs = 10;
constexpr const wchar_t* CopyOverFunction = L"VornStd::CopyOver";
constexpr const wchar_t* FileCopyFunction = L"VornStd::FileCopy";
constexpr const wchar_t* RefusedTargetFormat =
    L"File [%ls] is a directory or read-only, deleting file [%ls]";
constexpr const wchar_t* RemoveFailedFormat = L"Unable to remove file [%ls]: %ls.";
constexpr const wchar_t* OpenFailedFormat = L"Unable to open file [%ls]: %ls.";
constexpr const wchar_t* CopyFailedFormat = L"Unable to copy file [%ls] to [%ls]: %ls.";
constexpr const wchar_t* TruncateFailedFormat = L"Unable to empty file [%ls]: %ls.";
constexpr const wchar_t* SameFileFormat = L"File [%ls] cannot be copied onto itself.";

constexpr wchar_t ReleaseSeparator = L' ';
constexpr const wchar_t* OperatingSystemFailedText = L"Failed to get correct Operating System.";

constexpr const wchar_t* FormatFailedText = L"Unable to format string: ";

// ---- Fields

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

// The wide form of a single byte of the system's code page; a byte that is
// no character on its own matches nothing, as the zero of a C text.
wchar_t delimiterOf(int delimiter) {
    const std::wstring wide = EncodingUtils::convertMbcsToUnicode(
        std::string(1, static_cast<char>(delimiter)), SystemCodePage);
    return wide.size() == 1 ? wide[0] : L'\0';
}

// Marks the values from first to last where the array has elements for
// them, counting each, and answers the new count. The count stops at the
// largest int rather than overflow.
int markRange(int* array, int maxIndex, long long first, long long last, int count) {
    first = std::max<long long>(first, 0);
    last = std::min<long long>(last, maxIndex);
    if (first > last) {
        return count;
    }
    std::fill(array + first, array + last + 1, 1);
    return static_cast<int>(std::min<long long>(count + (last - first + 1), INT_MAX));
}

// ---- Command line

// The one position both forms of GetOption walk with.
int optionIndex = 1;

bool isSwitch(wchar_t c) { return c == L'-' || c == L'/'; }

template <typename Character>
wchar_t widened(Character c) {
    return static_cast<wchar_t>(static_cast<std::make_unsigned_t<Character>>(c));
}

bool isOptionLetter(char c) {
    const int value = static_cast<unsigned char>(c);
    return std::isalnum(value) || std::ispunct(value);
}

bool isOptionLetter(wchar_t c) {
    return std::iswalnum(static_cast<wint_t>(c)) || std::iswpunct(static_cast<wint_t>(c));
}

const char* findLetter(const char* text, char c) { return std::strchr(text, c); }
const wchar_t* findLetter(const wchar_t* text, wchar_t c) { return std::wcschr(text, c); }

template <typename Character>
int nextOption(int argc, Character* argv[], const Character* optionString, Character** argument) {
    *argument = nullptr;
    if (optionIndex >= argc || argv == nullptr || argv[optionIndex] == nullptr) {
        return EndOfOptions;
    }
    Character* entry = argv[optionIndex++];
    if (!isSwitch(widened(entry[0]))) {
        *argument = entry;
        return NotAnOption;
    }
    const Character letter = entry[1];
    const Character* found = letter != 0 && isOptionLetter(letter) && optionString != nullptr
                                 ? findLetter(optionString, letter)
                                 : nullptr;
    if (found == nullptr) {
        *argument = entry;
        return UnknownOption;
    }
    const int result = static_cast<int>(widened(letter));
    if (widened(found[1]) != ArgumentMark) {
        return result;
    }
    Character* rest = entry + 2;
    if (*rest == 0 && optionIndex < argc && argv[optionIndex] != nullptr &&
        !isSwitch(widened(argv[optionIndex][0]))) {
        *argument = argv[optionIndex++];
    } else {
        *argument = rest;
    }
    return result;
}

// ---- Text

template <typename Unit>
void appendNumber(std::wstring& out, Unit unit, int base) {
    const unsigned int value = static_cast<unsigned int>(unit);
    const wchar_t* format = base == OctalBase         ? OctalFormat
                            : base == HexadecimalBase ? HexadecimalFormat
                                                      : DecimalFormat;
    StringUtils::sprintfStringAppend(out, format, value);
}

template <typename Character, typename Printable>
SWString dump(const Character* data, int length, int base, Printable printable) {
    SWString out;
    if (data == nullptr || length < 1) {
        length = 0;
    }
    for (int i = 0; i < length; ++i) {
        appendNumber(out, static_cast<std::make_unsigned_t<Character>>(data[i]), base);
    }
    out.push_back(Quote);
    for (int i = 0; i < length; ++i) {
        out.push_back(printable(data[i]) ? widened(data[i]) : Unprintable);
    }
    out.push_back(Quote);
    return out;
}

// ---- Files

std::wstring lastErrorText() { return vorn_std::ErrorUtils::getLastErrorDescription(); }

struct FileCloser {
    void operator()(FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<FILE, FileCloser>;

FilePointer openFile(const SWString& name, const char* mode) {
    return FilePointer(std::fopen(toPlatformUtf8(name).c_str(), mode));
}

// Copies what is left of from into to, in blocks of the given size. False
// on a read or write error; errno tells which.
bool copyStream(FILE* from, FILE* to, size_t blockSize) {
    std::unique_ptr<char[]> block(new char[blockSize]);
    for (;;) {
        const size_t read = std::fread(block.get(), 1, blockSize, from);
        if (read > 0 && std::fwrite(block.get(), 1, read, to) != read) {
            return false;
        }
        if (read < blockSize) {
            return std::ferror(from) == 0;
        }
    }
}

// Closes the file and tells whether everything written reached the system.
bool closeWritten(FilePointer& file) {
    const bool flushed = std::fflush(file.get()) == 0;
    const bool closed = std::fclose(file.release()) == 0;
    return flushed && closed;
}

bool renameWithRetries(const std::string& source, const std::string& dest) {
    long delay = FirstRetryDelayMs;
    for (long slept = 0;; slept += delay, delay *= 2) {
        if (std::rename(source.c_str(), dest.c_str()) == 0) {
            return true;
        }
        if (slept >= RetryBudgetMs) {
            return false;
        }
        vorn_std::Thread::sleep(delay);
    }
}

int copyByHand(const SWString& source, const SWString& dest) {
    // The source first: a source that cannot be opened leaves dest as it is.
    FilePointer from = openFile(source, "r+");
    if (from == nullptr) {
        VORN_DEBUG(CopyOverFunction, OpenFailedFormat, source.c_str(), lastErrorText().c_str());
        return CopyOverFailed;
    }
    FilePointer to = openFile(dest, "w+");
    if (to == nullptr) {
        VORN_DEBUG(CopyOverFunction, OpenFailedFormat, dest.c_str(), lastErrorText().c_str());
        return CopyOverFailed;
    }
    if (!copyStream(from.get(), to.get(), CopyOverBlock) || !closeWritten(to)) {
        VORN_DEBUG(CopyOverFunction, CopyFailedFormat, source.c_str(), dest.c_str(),
                   lastErrorText().c_str());
        return CopyOverFailed;
    }
    from.reset();
    // Opening for writing is standard C's way to cut a file to nothing.
    FilePointer emptied = openFile(source, "w");
    if (emptied == nullptr || !closeWritten(emptied)) {
        VORN_DEBUG(CopyOverFunction, TruncateFailedFormat, source.c_str(), lastErrorText().c_str());
        return CopyOverFailed;
    }
    return CopyOverCopied;
}

// ---- Process-wide folders

std::mutex& folderLock() {
    static std::mutex& lock = *new std::mutex();
    return lock;
}

// Never destroyed: a late reader at process exit still finds them.
SFilePath& vornDirectory() {
    static SFilePath& directory = *new SFilePath();
    return directory;
}

SWString& applicationSubDirectory() {
    static SWString& directory = *new SWString();
    return directory;
}

// ---- Formatting

// Formats a narrow format as narrow text. vsnprintf reports the full length
// even when it does not fit, so one measuring pass and one writing pass do.
std::string formatNarrow(va_list args, const char* format) {
    va_list attempt;
    va_copy(attempt, args);
    const int length = std::vsnprintf(nullptr, 0, format, attempt);
    va_end(attempt);
    if (length < 0) {
        throw vorn_std::VornIllegalArgumentException(
            FormatFailedText + EncodingUtils::convertMbcsToUnicode(format, SystemCodePage));
    }
    std::string text(static_cast<size_t>(length) + 1, '\0');
    va_copy(attempt, args);
    std::vsnprintf(&text[0], text.size(), format, attempt);
    va_end(attempt);
    text.resize(static_cast<size_t>(length));
    return text;
}

}  // namespace

// ---- Fields and ranges

int GetDelimField(SWString& dest, const SWString& source, int field, wchar_t delimiter) {
    dest.clear();
    size_t begin = 0;
    for (int skipped = 1; skipped < field; ++skipped) {
        const size_t at = source.find(delimiter, begin);
        if (at == std::wstring::npos) {
            return 0;
        }
        begin = at + 1;
    }
    const size_t end = source.find(delimiter, begin);
    dest.assign(source, begin, end == std::wstring::npos ? std::wstring::npos : end - begin);
    return static_cast<int>(dest.size());
}

int GetDelimField(char* dest, int size, const char* source, int field, int delimiter) {
    if (dest == nullptr || size < 1) {
        return 0;
    }
    SWString wideField;
    GetDelimField(wideField, SWString(source), field, delimiterOf(delimiter));
    const std::string bytes = EncodingUtils::convertUnicodeToMbcs(wideField, SystemCodePage);
    const size_t copied = std::min(bytes.size(), static_cast<size_t>(size) - 1);
    std::memcpy(dest, bytes.data(), copied);
    dest[copied] = '\0';
    return static_cast<int>(copied);
}

int NbrDelimFields(const SWString& source, wchar_t delimiter) {
    int fields = 1;
    for (const wchar_t c : source) {
        fields += c == delimiter ? 1 : 0;
    }
    return fields;
}

int GetPosField(SWString& dest, const SWString& source, int position, int length) {
    dest.clear();
    if (position < 1 || static_cast<size_t>(position) > source.size() || length < 1) {
        return 0;
    }
    dest.assign(source, static_cast<size_t>(position) - 1, static_cast<size_t>(length));
    return 1;
}

int RangeStrToIntArr(const SWString& text, int* array, int maxIndex) {
    if (array == nullptr || maxIndex < 0) {
        return 0;
    }
    std::fill(array, array + static_cast<size_t>(maxIndex) + 1, 0);
    int count = 0;
    long long previous = -1;
    long long number = 0;
    bool inNumber = false;
    bool fits = true;
    bool range = false;
    // The end of the text ends a number like any other non-digit.
    for (size_t i = 0; i <= text.size(); ++i) {
        const wchar_t c = i < text.size() ? text[i] : L'\0';
        if (isDigit(c)) {
            if (!inNumber) {
                inNumber = true;
                fits = true;
                number = 0;
            }
            number = fits ? number * 10 + (c - L'0') : number;
            fits = fits && number <= INT_MAX;
            continue;
        }
        if (inNumber && fits) {
            count = markRange(array, maxIndex, number, number, count);
            if (range && previous <= number) {
                count = markRange(array, maxIndex, previous, number, count);
            }
            previous = number;
        }
        if (inNumber) {
            inNumber = false;
            range = false;
        }
        range = range || c == L'-';
    }
    return count;
}

// ---- Command line

int GetOption(int argc, wchar_t* argv[], const wchar_t* optionString, wchar_t** argument) {
    wchar_t* ignored = nullptr;
    return nextOption(argc, argv, optionString, argument != nullptr ? argument : &ignored);
}

int GetOption(int argc, char* argv[], const char* optionString, char** argument) {
    char* ignored = nullptr;
    return nextOption(argc, argv, optionString, argument != nullptr ? argument : &ignored);
}

// ---- Text

SWString BufferDump(const char* data, int length, int base) {
    return dump(data, length, base,
                [](char c) { return std::isprint(static_cast<unsigned char>(c)) != 0; });
}

SWString BufferDump(const wchar_t* data, int length, int base) {
    return dump(data, length, base,
                [](wchar_t c) { return std::iswprint(static_cast<wint_t>(c)) != 0; });
}

int SWSfgets(SWString& string, FILE* stream) {
    string.clear();
    if (stream == nullptr) {
        return 0;
    }
    // The bytes of the whole line are converted at once, so that no
    // character is split between two pieces.
    std::string line;
    for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream)) {
        line.push_back(static_cast<char>(c));
        if (c == '\n') {
            break;
        }
    }
    string = EncodingUtils::convertMbcsToUnicode(line, SystemCodePage);
    return line.empty() ? 0 : 1;
}

char* TrimString(char* text) {
    if (text != nullptr) {
        size_t length = std::strlen(text);
        while (length > 0 && std::strchr(WhiteSpace, text[length - 1]) != nullptr) {
            text[--length] = '\0';
        }
    }
    return text;
}

wchar_t* TrimString(wchar_t* text) {
    if (text != nullptr) {
        size_t length = std::wcslen(text);
        while (length > 0 && std::wcschr(WideWhiteSpace, text[length - 1]) != nullptr) {
            text[--length] = L'\0';
        }
    }
    return text;
}

SWString& TrimString(SWString& text) { return text.TrimString(); }

SWString Num2Str(long value) {
    SWString text;
    StringUtils::sprintfStringAppend(text, LongFormat, value);
    return text;
}

SWString printErr(int code, const SWString& prefix) {
    SWString text = prefix;
    StringUtils::sprintfStringAppend(
        text, code > LargestShortCode ? LongCodeFormat : ShortCodeFormat, code);
    return text;
}

SWString printLastErr() {
    const int code = vorn_std::ErrorUtils::getLastError();
    SWString text = vorn_std_internal::systemErrorText(code);
    text.TrimString();
    return text.empty() ? SWString(UnexpectedErrorText) : text;
}

// ---- Paths and files

char* BaseName(char* dest, const char* path) {
    const std::string name =
        toPlatformUtf8(SFilePath(fromPlatformUtf8(path != nullptr ? path : "")).Basename());
    return std::strcpy(dest, name.c_str());
}

wchar_t* BaseName(wchar_t* dest, const wchar_t* path) {
    return std::wcscpy(dest, SFilePath(path != nullptr ? path : L"").Basename().c_str());
}

char* DirName(char* dest, const char* path) {
    const std::string directory =
        toPlatformUtf8(SFilePath(fromPlatformUtf8(path != nullptr ? path : "")).Dirname());
    return std::strcpy(dest, directory.c_str());
}

wchar_t* DirName(wchar_t* dest, const wchar_t* path) {
    return std::wcscpy(dest, SFilePath(path != nullptr ? path : L"").Dirname().c_str());
}

bool FileExist(const SWString& name) {
    return !name.empty() && LegacyFileSystem::matchesAnyEntry(toPlatformUtf8(name));
}

bool FileCopy(const SWString& source, const SWString& dest) {
    if (LegacyFileSystem::isSameFile(toPlatformUtf8(source), toPlatformUtf8(dest))) {
        // Opening dest for writing would empty source before it is read.
        VORN_DEBUG(FileCopyFunction, SameFileFormat, source.c_str());
        return false;
    }
    FilePointer from = openFile(source, "rb");
    if (from == nullptr) {
        return false;
    }
    FilePointer to = openFile(dest, "wb");
    if (to == nullptr) {
        return false;
    }
    if (!copyStream(from.get(), to.get(), FileCopyBlock) || !closeWritten(to)) {
        to.reset();
        std::remove(toPlatformUtf8(dest).c_str());
        return false;
    }
    return true;
}

int CopyOver(const SWString& source, const SWString& dest) {
    const std::string sourceName = toPlatformUtf8(source);
    const std::string destName = toPlatformUtf8(dest);
    // Windows refused to remove these with the access error, and callers
    // rely on that; Linux would remove an empty folder or a read-only file.
    bool refused = LegacyFileSystem::isDirectoryOrReadOnly(destName);
    const int removeError = (refused || std::remove(destName.c_str()) == 0) ? 0 : errno;
    refused = refused || removeError == EACCES;
    if (refused) {
        VORN_DEBUG(CopyOverFunction, RefusedTargetFormat, dest.c_str(), source.c_str());
        if (std::remove(sourceName.c_str()) != 0) {
            VORN_DEBUG(CopyOverFunction, RemoveFailedFormat, source.c_str(),
                       lastErrorText().c_str());
        }
        return CopyOverFailed;
    }
    if ((removeError == 0 || removeError == ENOENT) && renameWithRetries(sourceName, destName)) {
        return CopyOverRenamed;
    }
    return copyByHand(source, dest);
}

// ---- System

SWString GetCurrentTimestamp() {
    const std::wstring stamp = vorn_std::TimeUtils::getCurrentTimestamp();
    return stamp.empty() ? SWString() : SWString(stamp + L" ");
}

SWString GetHostName() { return vorn_std::VornSystem::getHostName(); }

SWString GetOSName() {
    const std::wstring name = vorn_std::VornSystem::getOperatingSystemName();
    // Without its release the name is the system's word and a blank.
    const bool complete = !name.empty() && name.back() != ReleaseSeparator;
    return complete ? SWString(name) : SWString(OperatingSystemFailedText);
}

void SetVornDir(const SFilePath& directory) {
    std::lock_guard<std::mutex> guard(folderLock());
    vornDirectory() = directory;
}

SFilePath GetVornDir() {
    std::lock_guard<std::mutex> guard(folderLock());
    return vornDirectory();
}

void SetAppSubDir(const SWString& directory) {
    std::lock_guard<std::mutex> guard(folderLock());
    applicationSubDirectory() = directory;
}

SWString GetAppSubDir() {
    std::lock_guard<std::mutex> guard(folderLock());
    return applicationSubDirectory();
}

// ---- Formatting

void sprintfString(SWString& out, const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        sprintfStringVA(out, args, format);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void sprintfString(SWString& out, const char* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        sprintfStringVA(out, args, format);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void sprintfStringVA(SWString& out, va_list args, const wchar_t* format) {
    SWString text;
    sprintfStringAppendVA(text, args, format);
    out.swap(text);
}

void sprintfStringVA(SWString& out, va_list args, const char* format) {
    SWString text;
    sprintfStringAppendVA(text, args, format);
    out.swap(text);
}

void sprintfStringAppend(SWString& out, const wchar_t* format, ...) {
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

void sprintfStringAppend(SWString& out, const char* format, ...) {
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

void sprintfStringAppendVA(SWString& out, va_list args, const wchar_t* format) {
    StringUtils::sprintfStringAppendVA(out, args, format);
}

void sprintfStringAppendVA(SWString& out, va_list args, const char* format) {
    if (format == nullptr) {
        // The wide form owns the check and its text.
        StringUtils::sprintfStringAppendVA(out, args, static_cast<const wchar_t*>(nullptr));
        return;
    }
    // glibc's wide printf would convert each "%s" argument by the process's
    // locale, "C" unless the host set one, and refuse every byte above 0x7F;
    // narrow formatting copies the bytes, and the code page reads them after.
    out += EncodingUtils::convertMbcsToUnicode(formatNarrow(args, format), SystemCodePage);
}

}  // namespace VornStd
