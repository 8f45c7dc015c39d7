#pragma once

#include <cstddef>
#include <memory>

namespace VornStd {

// An owned array of characters for the older calls that fill a C buffer,
// such as MemoryBuffer<wchar_t>. A size of 0 holds no array at all (the
// pointer is null). The array starts zeroed, and resize() to another size
// drops the contents. Not copyable: it owns the array alone. Not for
// sharing between threads.
template <typename Character>
class MemoryBuffer {
public:
    explicit MemoryBuffer(size_t size = 0) { allocate(size); }
    MemoryBuffer(const MemoryBuffer&) = delete;
    MemoryBuffer& operator=(const MemoryBuffer&) = delete;

    // The same size keeps the array and what it holds.
    void resize(size_t newSize) {
        if (newSize != count) {
            allocate(newSize);
        }
    }

    // In characters.
    size_t size() const { return count; }

    operator Character*() { return buffer.get(); }
    operator const Character*() const { return buffer.get(); }

private:
    void allocate(size_t newSize) {
        buffer.reset(newSize == 0 ? nullptr : new Character[newSize]());
        count = newSize;
    }

    size_t count = 0;
    std::unique_ptr<Character[]> buffer;
};

}  // namespace VornStd
