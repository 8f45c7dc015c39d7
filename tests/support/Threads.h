#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace vorn_test {

// A bound, not a timing: only a hang reaches it.
constexpr std::chrono::seconds Eventually{30};

// Spins (yielding) until the predicate holds or Eventually has passed.
bool waitUntil(const std::function<bool()>& predicate);

// A reusable barrier for a fixed number of threads.
class Barrier {
public:
    explicit Barrier(int parties) : parties(parties) {}
    void arriveAndWait();

private:
    std::mutex mutex;
    std::condition_variable released;
    const int parties;
    int waiting = 0;
    unsigned long generation = 0;
};

}  // namespace vorn_test
