#include "vorn_std/base/ByteBuffer.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "internal/ByteBufferCapacity.h"
#include "internal/SystemPropertySource.h"
#include "vorn_std/base/ByteArray.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/exception/VornBufferOverflowException.h"
#include "vorn_std/exception/VornBufferUnderflowException.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* AllocateFunction = L"vorn_std::ByteBuffer::allocate";
constexpr const wchar_t* SetOrderFunction = L"vorn_std::ByteBuffer::setOrder";
constexpr const wchar_t* GetFunction = L"vorn_std::ByteBuffer::get";
constexpr const wchar_t* PutFunction = L"vorn_std::ByteBuffer::put";
constexpr const wchar_t* GetShortFunction = L"vorn_std::ByteBuffer::getShort";
constexpr const wchar_t* GetIntFunction = L"vorn_std::ByteBuffer::getInt";
constexpr const wchar_t* GetLongLongFunction = L"vorn_std::ByteBuffer::getLongLong";
constexpr const wchar_t* PutShortFunction = L"vorn_std::ByteBuffer::putShort";
constexpr const wchar_t* PutIntFunction = L"vorn_std::ByteBuffer::putInt";
constexpr const wchar_t* PutLongLongFunction = L"vorn_std::ByteBuffer::putLongLong";
constexpr const wchar_t* GetByteArrayFunction = L"vorn_std::ByteBuffer::getByteArray";

constexpr const wchar_t* CapacityName = L"Capacity";
constexpr const wchar_t* PositionName = L"Position";
constexpr const wchar_t* IndexName = L"Index";
constexpr const wchar_t* RemainingName = L"Remaining data length";
constexpr const wchar_t* DestinationName = L"Destination buffer";
constexpr const wchar_t* SourceName = L"Source buffer";
constexpr const wchar_t* SizeName = L"Size";
constexpr const wchar_t* OffsetName = L"Offset";
constexpr const wchar_t* LengthName = L"Length";
constexpr const wchar_t* BufferSizeName = L"Buffer size";

constexpr const wchar_t* PositionAboveLimitText = L"Position is above limit";
constexpr const wchar_t* ReachedLimitText = L"Buffer has reached limit";
constexpr const wchar_t* RemainingBelowText = L"Remaining data length is below ";
constexpr const wchar_t* NoSpaceText = L"Insufficient space in buffer to add input";
constexpr const wchar_t* BelowDesiredLengthText = L"Remaining data length is below desired length";
constexpr const wchar_t* BelowInputSizeText = L"Remaining data length is below input buffer size";
constexpr const wchar_t* SameBufferText = L"Attempting to put to same buffer as source.";

constexpr const wchar_t* MaximumCapacityProperty = L"ByteBuffer maximum capacity";
constexpr const wchar_t* DefaultMaximumCapacityText = L"1000000000";
constexpr long DefaultMaximumCapacity = 1000000000;
constexpr long WideUnitBytes = 2;

uint16_t swapBytes(uint16_t value) { return byteSwap16(value); }
uint32_t swapBytes(uint32_t value) { return byteSwap32(value); }
uint64_t swapBytes(uint64_t value) { return byteSwap64(value); }

template <typename T>
void encodeValue(char* at, T value, Endian order) {
    auto bits = static_cast<std::make_unsigned_t<T>>(value);
    if (order != getSystemEndianType()) {
        bits = swapBytes(bits);
    }
    std::memcpy(at, &bits, sizeof bits);
}

template <typename T>
T decodeValue(const char* at, Endian order) {
    std::make_unsigned_t<T> bits;
    std::memcpy(&bits, at, sizeof bits);
    if (order != getSystemEndianType()) {
        bits = swapBytes(bits);
    }
    return static_cast<T>(bits);
}

template <typename T>
constexpr long widthOf() {
    return static_cast<long>(sizeof(T));
}

// The argument checks shared by the bulk forms, in their documented order.
void checkBulkArguments(const void* buffer, long size, long offset, long length,
                        const wchar_t* function, const wchar_t* bufferName) {
    ErrorUtils::isNullEx(buffer, function, bufferName);
    ErrorUtils::isBelowMinimumEx(size, 0, function, SizeName);
    ErrorUtils::isBelowMinimumEx(offset, 0, function, OffsetName);
    ErrorUtils::isBelowMinimumEx(length, 0, function, LengthName);
    ErrorUtils::isBelowMinimumEx(size, offset, function, SizeName);
    ErrorUtils::isBelowMinimumEx(size - offset, length, function, BufferSizeName);
}

bool isWhiteSpace(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\v' || c == L'\f' || c == L'\r';
}

}  // namespace

}  // namespace vorn_std

namespace vorn_std_internal {

long parseMaximumCapacity(const std::wstring& text) {
    size_t begin = 0;
    size_t end = text.size();
    while (begin < end && vorn_std::isWhiteSpace(text[begin])) {
        ++begin;
    }
    while (end > begin && vorn_std::isWhiteSpace(text[end - 1])) {
        --end;
    }
    if (begin < end && text[begin] == L'+') {
        ++begin;
    }
    if (begin == end) {
        return vorn_std::DefaultMaximumCapacity;
    }
    long value = 0;
    for (size_t i = begin; i < end; ++i) {
        if (text[i] < L'0' || text[i] > L'9') {
            return vorn_std::DefaultMaximumCapacity;
        }
        value = value * 10 + (text[i] - L'0');
        if (value > INT32_MAX) {
            return vorn_std::DefaultMaximumCapacity;
        }
    }
    return value;
}

}  // namespace vorn_std_internal

namespace vorn_std {

ByteBuffer::ByteBuffer(long capacity)
    : order(Endian::Big), data(new char[static_cast<size_t>(capacity) + 1]()) {
    this->capacity = capacity;
    limit = capacity;
}

ByteBuffer::~ByteBuffer() = default;

long ByteBuffer::getMaximumCapacity() {
    // Read once: a later change of the property has no effect.
    static const long maximum = vorn_std_internal::parseMaximumCapacity(
        vorn_std_internal::readSystemProperty(MaximumCapacityProperty, DefaultMaximumCapacityText));
    return maximum;
}

std::shared_ptr<ByteBuffer> ByteBuffer::allocate(long capacity) {
    ErrorUtils::isOutsideRangeEx(capacity, 0, getMaximumCapacity(), AllocateFunction, CapacityName);
    return std::shared_ptr<ByteBuffer>(new ByteBuffer(capacity));
}

void ByteBuffer::setOrder(Endian value) {
    if (value != Endian::Big && value != Endian::Little) {
        const std::wstring text =
            L"Order value " + std::to_wstring(static_cast<int>(value)) + L" is invalid.";
        ErrorUtils::logDebug(SetOrderFunction, text);
        throw VornIllegalArgumentException(text);
    }
    order = value;
}

char ByteBuffer::get() {
    try {
        ErrorUtils::isAboveMaximumEx(position, limit - 1, GetFunction, PositionName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferUnderflowException(PositionAboveLimitText, e);
    }
    return data[position++];
}

void ByteBuffer::put(char value) {
    try {
        ErrorUtils::isAboveMaximumEx(position, limit - 1, PutFunction, PositionName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferOverflowException(ReachedLimitText, e);
    }
    data[position++] = value;
}

template <typename T>
T ByteBuffer::getValue(const wchar_t* function) {
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), widthOf<T>(), function, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferUnderflowException(RemainingBelowText + std::to_wstring(widthOf<T>()), e);
    }
    const T value = decodeValue<T>(&data[position], order);
    position += widthOf<T>();
    return value;
}

template <typename T>
void ByteBuffer::putValue(const wchar_t* function, T value) {
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), widthOf<T>(), function, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferOverflowException(NoSpaceText, e);
    }
    encodeValue<T>(&data[position], value, order);
    position += widthOf<T>();
}

int16_t ByteBuffer::getShort() { return getValue<int16_t>(GetShortFunction); }
int32_t ByteBuffer::getInt() { return getValue<int32_t>(GetIntFunction); }
int64_t ByteBuffer::getLongLong() { return getValue<int64_t>(GetLongLongFunction); }
void ByteBuffer::putShort(int16_t value) { putValue(PutShortFunction, value); }
void ByteBuffer::putInt(int32_t value) { putValue(PutIntFunction, value); }
void ByteBuffer::putLongLong(int64_t value) { putValue(PutLongLongFunction, value); }

// The highest index is limit - width + 1: the last byte read may be the one at
// the limit, which the spare byte covers when the limit is the capacity.
void ByteBuffer::checkIndex(const wchar_t* function, long index, long width) const {
    ErrorUtils::isOutsideRangeEx(index, 0, limit - width + 1, function, IndexName);
}

template <typename T>
T ByteBuffer::getValueAt(const wchar_t* function, long index) const {
    checkIndex(function, index, widthOf<T>());
    return decodeValue<T>(&data[index], order);
}

template <typename T>
void ByteBuffer::putValueAt(const wchar_t* function, long index, T value) {
    checkIndex(function, index, widthOf<T>());
    encodeValue<T>(&data[index], value, order);
}

char ByteBuffer::get(long index) const {
    checkIndex(GetFunction, index, 1);
    return data[index];
}

void ByteBuffer::put(long index, char value) {
    checkIndex(PutFunction, index, 1);
    data[index] = value;
}

int16_t ByteBuffer::getShort(long index) const {
    return getValueAt<int16_t>(GetShortFunction, index);
}
int32_t ByteBuffer::getInt(long index) const { return getValueAt<int32_t>(GetIntFunction, index); }
int64_t ByteBuffer::getLongLong(long index) const {
    return getValueAt<int64_t>(GetLongLongFunction, index);
}
void ByteBuffer::putShort(long index, int16_t value) { putValueAt(PutShortFunction, index, value); }
void ByteBuffer::putInt(long index, int32_t value) { putValueAt(PutIntFunction, index, value); }
void ByteBuffer::putLongLong(long index, int64_t value) {
    putValueAt(PutLongLongFunction, index, value);
}

void ByteBuffer::get(char* destination, long size) { get(destination, size, 0, size); }

void ByteBuffer::get(char* destination, long size, long offset, long length) {
    checkBulkArguments(destination, size, offset, length, GetFunction, DestinationName);
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), length, GetFunction, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferUnderflowException(BelowDesiredLengthText, e);
    }
    std::memcpy(destination + offset, &data[position], static_cast<size_t>(length));
    position += length;
}

void ByteBuffer::get(wchar_t* destination, long size) { get(destination, size, 0, size); }

void ByteBuffer::get(wchar_t* destination, long size, long offset, long length) {
    checkBulkArguments(destination, size, offset, length, GetFunction, DestinationName);
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), WideUnitBytes * length, GetFunction,
                                     RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferUnderflowException(BelowDesiredLengthText, e);
    }
    for (long i = 0; i < length; ++i) {
        destination[offset + i] =
            static_cast<wchar_t>(decodeValue<uint16_t>(&data[position], order));
        position += WideUnitBytes;
    }
}

void ByteBuffer::put(const char* source, long size) { put(source, size, 0, size); }

void ByteBuffer::put(const char* source, long size, long offset, long length) {
    checkBulkArguments(source, size, offset, length, PutFunction, SourceName);
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), length, PutFunction, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferOverflowException(NoSpaceText, e);
    }
    std::memcpy(&data[position], source + offset, static_cast<size_t>(length));
    position += length;
}

void ByteBuffer::put(const wchar_t* source, long size) { put(source, size, 0, size); }

void ByteBuffer::put(const wchar_t* source, long size, long offset, long length) {
    checkBulkArguments(source, size, offset, length, PutFunction, SourceName);
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), WideUnitBytes * length, PutFunction,
                                     RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferOverflowException(NoSpaceText, e);
    }
    for (long i = 0; i < length; ++i) {
        encodeValue<uint16_t>(&data[position], static_cast<uint16_t>(source[offset + i]), order);
        position += WideUnitBytes;
    }
}

void ByteBuffer::put(ByteBuffer& source) {
    if (&source == this) {
        ErrorUtils::logDebug(PutFunction, SameBufferText);
        throw VornIllegalArgumentException(SameBufferText);
    }
    const long count = source.remaining();
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), count, PutFunction, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferOverflowException(BelowInputSizeText, e);
    }
    std::memcpy(&data[position], &source.data[source.position], static_cast<size_t>(count));
    position += count;
    source.position += count;
}

std::shared_ptr<ByteArray> ByteBuffer::getByteArray(long length) {
    ErrorUtils::isBelowMinimumEx(length, 0, GetByteArrayFunction, LengthName);
    try {
        ErrorUtils::isBelowMinimumEx(remaining(), length, GetByteArrayFunction, RemainingName);
    } catch (const VornIllegalArgumentException& e) {
        throw VornBufferUnderflowException(BelowDesiredLengthText, e);
    }
    auto bytes = std::make_shared<ByteArray>(&data[position], length);
    position += length;
    return bytes;
}

std::wstring ByteBuffer::toString() const {
    return L"ByteBuffer{" + Buffer::toString() + L",order=" +
           std::to_wstring(static_cast<int>(order)) + L"}";
}

}  // namespace vorn_std
