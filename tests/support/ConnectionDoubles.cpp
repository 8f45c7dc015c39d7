#include "support/ConnectionDoubles.h"

#include "support/Threads.h"

namespace vorn_test {

std::vector<std::wstring> RecordingListener::waitFor(size_t count) {
    std::unique_lock<std::mutex> guard(mutex);
    changed.wait_for(guard, Eventually, [&] { return events.size() >= count; });
    return events;
}

}  // namespace vorn_test
