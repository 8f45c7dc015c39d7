#include "vorn_std/thread/TimeUtils.h"

#include <ctime>
#include <cwchar>

#include "internal/PlatformText.h"
#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

// Never destroyed: a process-wide object's last trace line may need the
// clock after the exit list has run.
Lock& TimeUtils::lock = *new Lock();

namespace {

constexpr const wchar_t* TimestampFormat = L"%2.2d-%2.2d-%2.2d %2.2d:%2.2d:%2.2d.%3.3d";
constexpr const wchar_t* TooLargeText =
    L"Unable to format time string, resulting string is too large.";
constexpr const wchar_t* MillisecondToken = L"%s";
constexpr size_t FormatRoom = 2048;
constexpr size_t ZoneNameLimit = 256;

bool toLocalTime(unsigned long long ms, struct tm& local) {
    const time_t seconds = static_cast<time_t>(ms / 1000);
    return localtime_r(&seconds, &local) != nullptr;
}

std::wstring zoneName(int index) {
    AutoLock<Lock> guard(&TimeUtils::lock);
    tzset();
    std::wstring name = vorn_std_internal::fromPlatformUtf8(tzname[index] != nullptr ? tzname[index] : "");
    return name.substr(0, ZoneNameLimit);
}

}  // namespace

unsigned long long TimeUtils::getCurrentTimeMs() {
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<unsigned long long>(now.tv_sec) * 1000ULL +
           static_cast<unsigned long long>(now.tv_nsec / 1000000);
}

int TimeUtils::getCurrentWeekday() { return getWeekdayForTimeMs(getCurrentTimeMs()); }

int TimeUtils::getWeekdayForTimeMs(unsigned long long ms) {
    struct tm local {};
    return toLocalTime(ms, local) ? local.tm_wday : 0;
}

std::wstring TimeUtils::getCurrentTimestamp() { return getTimestampForTimeMs(getCurrentTimeMs()); }

std::wstring TimeUtils::getTimestampForTimeMs(unsigned long long ms) {
    struct tm local {};
    if (!toLocalTime(ms, local)) {
        return std::wstring();
    }
    std::wstring text;
    StringUtils::sprintfStringAppend(text, TimestampFormat, local.tm_year + 1900, local.tm_mon + 1,
                                     local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                                     static_cast<int>(ms % 1000));
    return text;
}

std::wstring TimeUtils::formatTime(const wchar_t* format, unsigned long long ms) {
    struct tm local {};
    toLocalTime(ms, local);
    std::wstring expanded = format != nullptr ? format : L"";
    const std::wstring milliseconds = std::to_wstring(ms % 1000);
    for (size_t at = expanded.find(MillisecondToken); at != std::wstring::npos;
         at = expanded.find(MillisecondToken, at + milliseconds.size())) {
        expanded.replace(at, 2, milliseconds);
    }
    wchar_t buffer[FormatRoom];
    const size_t length = wcsftime(buffer, FormatRoom, expanded.c_str(), &local);
    if (length == 0) {
        throw VornIllegalArgumentException(TooLargeText);
    }
    return std::wstring(buffer, length);
}

std::wstring TimeUtils::getTimezone() { return zoneName(0); }

std::wstring TimeUtils::getDSTZone() { return zoneName(1); }

}  // namespace vorn_std
