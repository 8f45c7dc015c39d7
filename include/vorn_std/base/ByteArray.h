#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// A counted block of bytes, with conversion from and to text. A copy (made by
// the copy constructor or by assignment) owns its own block and shares nothing.
// One thread at a time.
//
// Charsets, compared exactly: "windows-1252" converts through the system's own
// code page (EncodingUtils, code page 0), and decoding stops at a zero byte;
// "UTF-8" through Utf8Utils; any other name stores each wide character as one
// 16-bit unit in machine order, WCHAR_T_SIZE bytes each.
class VORNSTD_API ByteArray {
public:
    static constexpr int WCHAR_T_SIZE = 2;

    ByteArray();
    // A zeroed block. VornIllegalArgumentException for a negative length.
    explicit ByteArray(long length);
    // A copy of length bytes at value. VornIllegalArgumentException for a null
    // value or a negative length.
    ByteArray(const char* value, long length);
    explicit ByteArray(const std::string& value);
    ByteArray(const std::wstring& text, const std::wstring& charset);
    ByteArray(const ByteArray& other);
    ByteArray& operator=(const ByteArray& other);
    virtual ~ByteArray();

    // Never null, also for length 0.
    std::shared_ptr<char[]> getArray() const { return array; }
    long getLength() const { return length; }
    // Leaves an empty block.
    void clear();

    // An index outside 0 to length - 1 writes the check's debug line and hands
    // out a spare byte, set to 0: a bad index reads 0 and writes go nowhere.
    char& operator[](long index);
    char operator[](long index) const;

    bool operator==(const ByteArray& other) const;
    bool operator!=(const ByteArray& other) const { return !(*this == other); }

    std::wstring toWString(const std::wstring& charset) const;
    // The bytes as they are.
    virtual std::string toString() const;

private:
    void assign(const char* bytes, long count);
    bool isValidIndex(long index) const;

    std::shared_ptr<char[]> array;
    long length;
    char spare;
};

}  // namespace vorn_std
