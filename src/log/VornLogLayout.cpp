#include "vorn_std/log/VornLogLayout.h"

#include <ctime>
#include <cwchar>

#include "internal/PriorityName.h"

#include "vorn_std/log/LogEvent.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* DebugProperty = L"debug";
constexpr const wchar_t* TrueValue = L"true";
constexpr size_t StampLength = 20;  // "YYYY-MM-DD hh:mm:ss:"

void appendDigits(std::wstring& out, unsigned long long value, size_t width) {
    wchar_t digits[24];
    size_t count = 0;
    do {
        digits[count++] = static_cast<wchar_t>(L'0' + value % 10);
        value /= 10;
    } while (value != 0);
    for (size_t pad = count; pad < width; ++pad) {
        out += L'0';
    }
    while (count > 0) {
        out += digits[--count];
    }
}

void appendHex(std::wstring& out, unsigned long long value) {
    wchar_t digits[16];
    size_t count = 0;
    do {
        digits[count++] = L"0123456789abcdef"[value & 0xF];
        value >>= 4;
    } while (value != 0);
    while (count > 0) {
        out += digits[--count];
    }
}

// The date and time up to the milliseconds change once a second: each thread
// keeps the last one it formatted, keyed also by the zone, which tzset() may
// change. Empty when the local time cannot be had.
const std::wstring& secondsStamp(int64_t seconds) {
    struct Cache {
        int64_t seconds = INT64_MIN;
        long zone = 0;
        std::wstring text;
    };
    thread_local Cache cache;
    const long zone = ::timezone;
    if (cache.seconds == seconds && cache.zone == zone) {
        return cache.text;
    }
    cache.seconds = seconds;
    cache.zone = zone;
    cache.text.clear();
    const time_t when = static_cast<time_t>(seconds);
    struct tm local {};
    if (localtime_r(&when, &local) != nullptr) {
        cache.text.reserve(StampLength);
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_year + 1900), 1);
        cache.text += L'-';
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_mon + 1), 2);
        cache.text += L'-';
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_mday), 2);
        cache.text += L' ';
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_hour), 2);
        cache.text += L':';
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_min), 2);
        cache.text += L':';
        appendDigits(cache.text, static_cast<unsigned long long>(local.tm_sec), 2);
        cache.text += L':';
    }
    return cache.text;
}

}  // namespace

VornLogLayout::VornLogLayout(bool debug) : debug(debug) {}

std::wstring VornLogLayout::toString() const {
    return std::wstring(L"VornLogLayout{debug=") + (debug ? L"true" : L"false") + L"}";
}

std::wstring VornLogLayout::getClassName() const { return L"vorn_std.VornLogLayout"; }

Configurable* VornLogLayout::newInstance(const Properties& properties) {
    auto found = properties.find(DebugProperty);
    return new VornLogLayout(found != properties.end() && found->second == TrueValue);
}

std::wstring VornLogLayout::format(const LogEvent& event) {
    const std::wstring& stamp = secondsStamp(event.getTime().seconds);
    const wchar_t* priority = vorn_std_internal::priorityName(event.getPriority());
    std::wstring line;
    line.reserve(stamp.size() + 4 + wcslen(priority) + 24 + event.getErrorId().size() +
                 event.getFileName().size() + 14 + event.getFunction().size() +
                 event.getMessage().size() + 4);
    if (!stamp.empty()) {
        line += stamp;
        appendDigits(line, event.getTime().milliseconds, 3);
        line += L' ';
    }
    line += priority;
    if (debug && event.getThreadId() != Thread::InvalidThreadID) {
        line += L" [0x";
        appendHex(line, event.getThreadId());
        line += L']';
    }
    if (!event.getErrorId().empty()) {
        line += L' ';
        line += event.getErrorId();
    }
    if (!event.getFileName().empty()) {
        line += L' ';
        line += event.getFileName();
        if (event.getLineNumber() != 0) {
            line += L'[';
            appendDigits(line, event.getLineNumber(), 1);
            line += L']';
        }
    }
    if (debug) {
        line += L' ';
        line += event.getFunction();
        line += L':';
    }
    line += L' ';
    line += event.getMessage();
    if (event.getMessage().empty() || event.getMessage().back() != L'\n') {
        line += L'\n';
    }
    return line;
}

}  // namespace vorn_std
