// Wake-up latency of the waits beside the bare primitives they are built on,
// and the Lock beside std::recursive_mutex, all in one run. A ping-pong
// between two threads: each iteration is two wake-ups.
#include <benchmark/benchmark.h>
#include <pthread.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

// Runs pong() on a partner thread; each iteration of the benchmark loop sends
// a ping and waits for the answer. The partner reads the stop flag before it
// answers, so the last ping, sent after the flag, is always answered.
template <typename Ping, typename Pong>
void pingPong(benchmark::State& state, Ping ping, Pong pong) {
    std::atomic<bool> stop{false};
    std::thread partner([&] {
        while (pong(stop)) {
        }
    });
    for (auto _ : state) {
        ping();
    }
    stop = true;
    ping();  // releases the partner from its last wait
    partner.join();
}

void BM_VornEventPingPong(benchmark::State& state) {
    Event request(true, false);
    Event reply(true, false);
    pingPong(
        state,
        [&] {
            request.signal();
            Concurrency::waitForSingleObject(reply, -1);
        },
        [&](std::atomic<bool>& stop) {
            Concurrency::waitForSingleObject(request, -1);
            const bool more = !stop.load();
            reply.signal();
            return more;
        });
}
BENCHMARK(BM_VornEventPingPong)->UseRealTime();

void BM_VornWaitAnyOf8PingPong(benchmark::State& state) {
    std::vector<std::unique_ptr<Event>> requests;
    std::vector<Waitable*> requestSet;
    for (int i = 0; i < 8; ++i) {
        requests.push_back(std::make_unique<Event>(true, false));
        requestSet.push_back(requests.back().get());
    }
    std::vector<std::unique_ptr<Event>> replies;
    std::vector<Waitable*> replySet;
    for (int i = 0; i < 8; ++i) {
        replies.push_back(std::make_unique<Event>(true, false));
        replySet.push_back(replies.back().get());
    }
    pingPong(
        state,
        [&] {
            requests[7]->signal();
            Concurrency::waitForMultipleObjects(replySet, Concurrency::WAIT_ANY, -1);
        },
        [&](std::atomic<bool>& stop) {
            Concurrency::waitForMultipleObjects(requestSet, Concurrency::WAIT_ANY, -1);
            const bool more = !stop.load();
            replies[7]->signal();
            return more;
        });
}
BENCHMARK(BM_VornWaitAnyOf8PingPong)->UseRealTime();

// The bare primitive: a flag under a mutex with a condition variable.
struct BareFlag {
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    pthread_cond_t cond = PTHREAD_COND_INITIALIZER;
    bool set = false;
    void signal() {
        pthread_mutex_lock(&mutex);
        set = true;
        pthread_cond_signal(&cond);
        pthread_mutex_unlock(&mutex);
    }
    void wait() {
        pthread_mutex_lock(&mutex);
        while (!set) pthread_cond_wait(&cond, &mutex);
        set = false;
        pthread_mutex_unlock(&mutex);
    }
};

// A ping-pong over two flags of the bare kind.
template <typename Flag>
void flagPingPong(benchmark::State& state) {
    Flag request;
    Flag reply;
    pingPong(
        state,
        [&] {
            request.signal();
            reply.wait();
        },
        [&](std::atomic<bool>& stop) {
            request.wait();
            const bool more = !stop.load();
            reply.signal();
            return more;
        });
}

void BM_PthreadCondPingPong(benchmark::State& state) { flagPingPong<BareFlag>(state); }
BENCHMARK(BM_PthreadCondPingPong)->UseRealTime();

struct StdFlag {
    std::mutex mutex;
    std::condition_variable cond;
    bool set = false;
    void signal() {
        {
            std::lock_guard<std::mutex> guard(mutex);
            set = true;
        }
        cond.notify_one();
    }
    void wait() {
        std::unique_lock<std::mutex> guard(mutex);
        cond.wait(guard, [&] { return set; });
        set = false;
    }
};

void BM_StdConditionVariablePingPong(benchmark::State& state) { flagPingPong<StdFlag>(state); }
BENCHMARK(BM_StdConditionVariablePingPong)->UseRealTime();

void BM_VornLockUnlock(benchmark::State& state) {
    Lock lock;
    for (auto _ : state) {
        lock.lock();
        lock.unlock();
    }
}
BENCHMARK(BM_VornLockUnlock);

void BM_StdRecursiveMutexLockUnlock(benchmark::State& state) {
    std::recursive_mutex mutex;
    for (auto _ : state) {
        mutex.lock();
        mutex.unlock();
    }
}
BENCHMARK(BM_StdRecursiveMutexLockUnlock);

}  // namespace

BENCHMARK_MAIN();
