#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

class Lock;

// Clock readings and the library's time stamps. Any thread may call; only
// the zone-name calls take TimeUtils::lock, around re-reading the zone.
class VORNSTD_API TimeUtils {
public:
    TimeUtils() = delete;

    static Lock& lock;

    // The wall clock in milliseconds since the epoch.
    static unsigned long long getCurrentTimeMs();
    // Local day of the week, Sunday being 0.
    static int getCurrentWeekday();
    static int getWeekdayForTimeMs(unsigned long long ms);
    // Local time as "YYYY-MM-DD hh:mm:ss.mmm"; empty if it cannot be converted.
    static std::wstring getCurrentTimestamp();
    static std::wstring getTimestampForTimeMs(unsigned long long ms);
    // wcsftime of the local time, after every "%s" of the format has been
    // replaced by the millisecond remainder. Throws VornIllegalArgumentException
    // when the result is empty or would exceed 2048 characters.
    static std::wstring formatTime(const wchar_t* format, unsigned long long ms);
    static std::wstring getTimezone();
    static std::wstring getDSTZone();
};

}  // namespace vorn_std
