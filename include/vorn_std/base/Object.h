#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Root of the library's value-like classes. Any thread may call toString();
// classes that override it print their name and fields between braces.
class VORNSTD_API Object {
public:
    Object() = default;
    Object(const Object&) {}
    Object& operator=(const Object&) { return *this; }
    virtual ~Object();

    virtual std::wstring toString() const;
};

}  // namespace vorn_std
