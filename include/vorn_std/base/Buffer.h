#pragma once

#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/base/Object.h"

namespace vorn_std {

// Position, limit and mark over a block of fixed capacity, as Java's Buffer:
// 0 <= mark <= position <= limit <= capacity, mark -1 when none is set.
// No lock: one thread at a time.
class VORNSTD_API Buffer : public Object {
public:
    ~Buffer() override;

    long getCapacity() const { return capacity; }
    long getLimit() const { return limit; }
    long getPosition() const { return position; }
    long remaining() const { return limit - position; }
    bool hasRemaining() const { return remaining() > 0; }

    // n from 0 to the capacity, else VornIllegalArgumentException ("Limit").
    // A position beyond n moves to n; a mark beyond n is dropped.
    void setLimit(long n);
    // n from 0 to the limit, else VornIllegalArgumentException ("Position").
    // A mark beyond n is dropped.
    void setPosition(long n);
    void setMark();
    // Back to the mark; without a mark, nothing happens (Java would throw).
    void reset();
    void clear();
    void flip();
    void rewind();

    std::wstring toString() const override;

protected:
    Buffer();

    long capacity;
    long limit;
    long position;
    long mark;
};

}  // namespace vorn_std
