#include <sys/eventfd.h>
#include <unistd.h>

#include "internal/EventHandle.h"

namespace vorn_std_internal {

int createEventHandle(bool initialState) {
    return eventfd(initialState ? 1 : 0, EFD_CLOEXEC | EFD_NONBLOCK);
}

void closeEventHandle(int handle) {
    if (handle >= 0) {
        close(handle);
    }
}

}  // namespace vorn_std_internal
