#pragma once

#include <string>

namespace vorn_std_internal {

// The system's own text for an error number, as it stands (it may end in
// white space); empty for a number the system does not know.
std::wstring systemErrorText(int code);

}  // namespace vorn_std_internal
