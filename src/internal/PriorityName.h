#pragma once

#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std_internal {

// The text of a priority without building a string: for the line layouts.
const wchar_t* priorityName(vorn_std::LogEventPriority priority);

}  // namespace vorn_std_internal
