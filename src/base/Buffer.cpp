#include "vorn_std/base/Buffer.h"

#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/base/StringUtils.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* SetLimitFunction = L"vorn_std::Buffer::setLimit";
constexpr const wchar_t* SetPositionFunction = L"vorn_std::Buffer::setPosition";
constexpr const wchar_t* LimitName = L"Limit";
constexpr const wchar_t* PositionName = L"Position";
constexpr const wchar_t* ToStringFormat = L"Buffer{capacity=%d,limit=%d,pos=%d,mark=%d}";
constexpr long NoMark = -1;

}  // namespace

Buffer::Buffer() : capacity(0), limit(0), position(0), mark(NoMark) {}

Buffer::~Buffer() = default;

void Buffer::setLimit(long n) {
    ErrorUtils::isOutsideRangeEx(n, 0, capacity, SetLimitFunction, LimitName);
    limit = n;
    if (position > n) {
        position = n;
    }
    if (mark > n) {
        mark = NoMark;
    }
}

void Buffer::setPosition(long n) {
    ErrorUtils::isOutsideRangeEx(n, 0, limit, SetPositionFunction, PositionName);
    position = n;
    if (mark > n) {
        mark = NoMark;
    }
}

void Buffer::setMark() { mark = position; }

void Buffer::reset() {
    if (mark >= 0) {
        position = mark;
    }
}

void Buffer::clear() {
    position = 0;
    limit = capacity;
    mark = NoMark;
}

void Buffer::flip() {
    limit = position;
    position = 0;
    mark = NoMark;
}

void Buffer::rewind() {
    position = 0;
    mark = NoMark;
}

std::wstring Buffer::toString() const {
    std::wstring text;
    StringUtils::sprintfStringAppend(text, ToStringFormat, static_cast<int>(capacity),
                                     static_cast<int>(limit), static_cast<int>(position),
                                     static_cast<int>(mark));
    return text;
}

}  // namespace vorn_std
