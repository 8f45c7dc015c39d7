#include <sys/types.h>
#include <unistd.h>

#include "internal/ThreadIdentity.h"

namespace vorn_std_internal {

unsigned long long currentOsThreadId() { return static_cast<unsigned long long>(::gettid()); }

}  // namespace vorn_std_internal
