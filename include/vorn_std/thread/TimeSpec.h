#pragma once

#include <cstdint>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// A point in time or a span, as whole seconds (64-bit) and nanoseconds kept
// in 0..999,999,999. Negative seconds mark an infinite wait. A value belongs
// to one thread; there is no lock.
class VORNSTD_API TimeSpec {
public:
    TimeSpec();
    TimeSpec(long long seconds, long nanoseconds);
    TimeSpec(const TimeSpec& other) = default;
    TimeSpec& operator=(const TimeSpec& other) = default;
    virtual ~TimeSpec();

    long long getSeconds() const { return seconds; }
    long getNanoseconds() const { return nanoseconds; }
    void setSeconds(long long value);
    void setNanoseconds(long value);
    // ms / 1000 (toward zero) to the seconds, the remainder to the nanoseconds.
    void addMilliseconds(long ms);

    bool operator==(const TimeSpec& other) const;
    TimeSpec operator+(const TimeSpec& other) const;
    TimeSpec operator-(const TimeSpec& other) const;
    void operator+=(const TimeSpec& other);
    void operator-=(const TimeSpec& other);

    // The wall clock at millisecond resolution.
    static TimeSpec getCurrentTime();

private:
    virtual std::wstring toString() const;
    void normalise(long long extraNanoseconds);

    int64_t seconds;
    int32_t nanoseconds;
};

}  // namespace vorn_std
