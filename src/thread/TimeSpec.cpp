#include "vorn_std/thread/TimeSpec.h"

#include <ctime>

namespace vorn_std {

namespace {

constexpr long long NanosPerSecond = 1000000000LL;
constexpr long long NanosPerMilli = 1000000LL;

// Seconds arithmetic wraps rather than overflowing into undefined behaviour.
int64_t wrappingAdd(int64_t a, int64_t b) {
    return static_cast<int64_t>(static_cast<uint64_t>(a) + static_cast<uint64_t>(b));
}

int64_t wrappingSubtract(int64_t a, int64_t b) {
    return static_cast<int64_t>(static_cast<uint64_t>(a) - static_cast<uint64_t>(b));
}

}  // namespace

TimeSpec::TimeSpec() : seconds(0), nanoseconds(0) {}

TimeSpec::TimeSpec(long long seconds, long nanoseconds) : seconds(seconds), nanoseconds(0) {
    normalise(nanoseconds);
}

TimeSpec::~TimeSpec() = default;

void TimeSpec::setSeconds(long long value) { seconds = value; }

void TimeSpec::setNanoseconds(long value) {
    nanoseconds = 0;
    normalise(value);
}

void TimeSpec::addMilliseconds(long ms) {
    seconds = wrappingAdd(seconds, ms / 1000);
    normalise(static_cast<long long>(nanoseconds) + (ms % 1000) * NanosPerMilli);
}

// By division, so that any 64-bit nanosecond count settles in one step.
void TimeSpec::normalise(long long totalNanoseconds) {
    long long carry = totalNanoseconds / NanosPerSecond;
    long long rest = totalNanoseconds % NanosPerSecond;
    if (rest < 0) {
        rest += NanosPerSecond;
        --carry;
    }
    seconds = wrappingAdd(seconds, carry);
    nanoseconds = static_cast<int32_t>(rest);
}

bool TimeSpec::operator==(const TimeSpec& other) const {
    return seconds == other.seconds && nanoseconds == other.nanoseconds;
}

TimeSpec TimeSpec::operator+(const TimeSpec& other) const {
    TimeSpec sum(*this);
    sum += other;
    return sum;
}

TimeSpec TimeSpec::operator-(const TimeSpec& other) const {
    TimeSpec difference(*this);
    difference -= other;
    return difference;
}

void TimeSpec::operator+=(const TimeSpec& other) {
    seconds = wrappingAdd(seconds, other.seconds);
    normalise(static_cast<long long>(nanoseconds) + other.nanoseconds);
}

void TimeSpec::operator-=(const TimeSpec& other) {
    seconds = wrappingSubtract(seconds, other.seconds);
    normalise(static_cast<long long>(nanoseconds) - other.nanoseconds);
}

TimeSpec TimeSpec::getCurrentTime() {
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    return TimeSpec(now.tv_sec, (now.tv_nsec / NanosPerMilli) * NanosPerMilli);
}

std::wstring TimeSpec::toString() const {
    return L"TimeSpec{seconds=" + std::to_wstring(seconds) + L",nanoseconds=" +
           std::to_wstring(nanoseconds) + L"}";
}

}  // namespace vorn_std
