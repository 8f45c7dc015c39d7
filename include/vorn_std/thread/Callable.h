#pragma once

#include <string>

namespace vorn_std {

// A task that returns a result.
template <typename T>
class Callable {
public:
    virtual ~Callable() = default;
    virtual std::wstring toString() const { return L"Callable{}"; }
    virtual T operator()() = 0;
};

}  // namespace vorn_std
