#pragma once

namespace vorn_std_internal {

// A platform event a host can poll: the descriptor, or -1 on failure.
int createEventHandle(bool initialState);
void closeEventHandle(int handle);

}  // namespace vorn_std_internal
