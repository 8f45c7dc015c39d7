#pragma once

#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// The largest capacity a ByteBuffer may be given, from the text of its
// property: a decimal integer from 0 to 2147483647, white space around it
// allowed. Anything else, a negative number included, gives 1000000000.
VORNSTD_API long parseMaximumCapacity(const std::wstring& text);

}  // namespace vorn_std_internal
