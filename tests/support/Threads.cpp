#include "support/Threads.h"

#include <thread>

namespace vorn_test {

bool waitUntil(const std::function<bool()>& predicate) {
    const auto limit = std::chrono::steady_clock::now() + Eventually;
    while (!predicate()) {
        if (std::chrono::steady_clock::now() > limit) {
            return false;
        }
        std::this_thread::yield();
    }
    return true;
}

void Barrier::arriveAndWait() {
    std::unique_lock<std::mutex> lock(mutex);
    const unsigned long arrivedIn = generation;
    if (++waiting == parties) {
        waiting = 0;
        ++generation;
        released.notify_all();
        return;
    }
    released.wait(lock, [&] { return generation != arrivedIn; });
}

}  // namespace vorn_test
