#pragma once

#include <map>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std {

// Base of everything made from a map of string properties. A registered
// object is only a prototype: newInstance() is the class's factory.
class VORNSTD_API Configurable : public Object {
public:
    using Properties = std::map<std::wstring, std::wstring>;

    ~Configurable() override;
    std::wstring toString() const override;
    // A new heap object made from the properties; the caller owns it.
    virtual Configurable* newInstance(const Properties& properties) = 0;
    // Does nothing unless a class says otherwise.
    virtual void setProperty(const std::wstring& key, const std::wstring& value);
};

}  // namespace vorn_std
