#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "vorn_std/base/Buffer.h"
#include "vorn_std/base/ByteOrder.h"
#include "vorn_std/base/Export.h"

namespace vorn_std {

class ByteArray;

// A fixed block of bytes with Java's ByteBuffer semantics: relative access at
// the position, absolute access by index, typed values in a chosen byte order
// (big-endian until setOrder says otherwise, whatever the machine).
//
// Buffers come from allocate() and travel as that shared_ptr: a ByteBuffer is
// not copyable. No lock: one thread at a time. A buffer never grows.
//
// Relative operations that lack room throw VornBufferUnderflowException (reads)
// or VornBufferOverflowException (writes), with the failed argument check as
// the nested exception. Absolute operations throw VornIllegalArgumentException
// ("Index") and accept one index more than Java: up to limit - width + 1, so
// get(limit) reads the byte at the limit. At limit == capacity that byte is a
// hidden spare byte past the block, zeroed at allocation.
//
// Wide characters in the bulk forms are 16-bit units, two bytes of the buffer
// each, in the buffer's order; size, offset and length count characters.
class VORNSTD_API ByteBuffer : public Buffer {
public:
    static constexpr int SHORT_BYTES = 2;
    static constexpr int INT_BYTES = 4;
    static constexpr int LONG_LONG_BYTES = 8;

    // capacity from 0 to getMaximumCapacity(), else VornIllegalArgumentException.
    static std::shared_ptr<ByteBuffer> allocate(long capacity);
    // The property "ByteBuffer maximum capacity" (default 1000000000), read on
    // the first call and kept for the life of the process.
    static long getMaximumCapacity();

    ~ByteBuffer() override;
    ByteBuffer(const ByteBuffer&) = delete;
    ByteBuffer& operator=(const ByteBuffer&) = delete;

    char* array() { return data.get(); }
    Endian getOrder() const { return order; }
    // VornIllegalArgumentException "Order value <n> is invalid." for any value
    // other than Endian::Big and Endian::Little.
    void setOrder(Endian value);

    char get();
    void put(char value);
    int16_t getShort();
    int32_t getInt();
    int64_t getLongLong();
    void putShort(int16_t value);
    void putInt(int32_t value);
    void putLongLong(int64_t value);

    char get(long index) const;
    void put(long index, char value);
    int16_t getShort(long index) const;
    int32_t getInt(long index) const;
    int64_t getLongLong(long index) const;
    void putShort(long index, int16_t value);
    void putInt(long index, int32_t value);
    void putLongLong(long index, int64_t value);

    void get(char* destination, long size);
    void get(char* destination, long size, long offset, long length);
    void get(wchar_t* destination, long size);
    void get(wchar_t* destination, long size, long offset, long length);
    void put(const char* source, long size);
    void put(const char* source, long size, long offset, long length);
    void put(const wchar_t* source, long size);
    void put(const wchar_t* source, long size, long offset, long length);
    // Copies all that remains of source; both positions advance.
    void put(ByteBuffer& source);

    std::shared_ptr<ByteArray> getByteArray(long length);

    std::wstring toString() const override;

private:
    explicit ByteBuffer(long capacity);

    template <typename T>
    T getValue(const wchar_t* function);
    template <typename T>
    void putValue(const wchar_t* function, T value);
    template <typename T>
    T getValueAt(const wchar_t* function, long index) const;
    template <typename T>
    void putValueAt(const wchar_t* function, long index, T value);
    void checkIndex(const wchar_t* function, long index, long width) const;

    Endian order;
    std::unique_ptr<char[]> data;  // capacity bytes and the spare byte
};

}  // namespace vorn_std
