#pragma once

#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/InternalDebug.h"

namespace vorn_std_internal {

// What follows the last separator of a source path: the last backslash if it
// stands after the last slash, else the last slash; the whole path if neither.
VORNSTD_API std::wstring sourceFileName(const char* path);

}  // namespace vorn_std_internal

// One library statement: nothing is built unless the threshold admits it.
#define VORN_STATEMENT(LEVEL, FUNCTION, ...)                                                 \
    do {                                                                                     \
        if (::vorn_std::__internal_##LEVEL##_on()) {                                         \
            ::vorn_std::__internal_##LEVEL(                                                  \
                FUNCTION, ::vorn_std_internal::sourceFileName(__FILE__).c_str(), __LINE__,   \
                __VA_ARGS__);                                                                \
        }                                                                                    \
    } while (0)

#define VORN_DEBUG(FUNCTION, ...) VORN_STATEMENT(debug, FUNCTION, __VA_ARGS__)
#define VORN_CALL(FUNCTION, ...) VORN_STATEMENT(call, FUNCTION, __VA_ARGS__)
#define VORN_TRACE(FUNCTION, ...) VORN_STATEMENT(trace, FUNCTION, __VA_ARGS__)
#define VORN_DUMP(FUNCTION, ...) VORN_STATEMENT(dump, FUNCTION, __VA_ARGS__)
