#pragma once

#include <functional>
#include <string>

namespace vorn_test {

// The message of the E that call throws, or "no exception" (or "another
// exception") so that a comparison with the expected text fails visibly.
template <typename E>
std::wstring messageOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const E& e) {
        return e.getMessage();
    } catch (...) {
        return L"another exception";
    }
    return L"no exception";
}

}  // namespace vorn_test
