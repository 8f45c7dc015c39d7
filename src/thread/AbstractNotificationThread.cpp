#include "vorn_std/thread/AbstractNotificationThread.h"

#include <atomic>

#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Concurrency.h"
#include "vorn_std/thread/Event.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std_internal {

struct NotificationState {
    vorn_std::Lock lock;
    std::atomic<bool> isShutdownFlag{false};  // written under lock, read without
    vorn_std::Event wakeEvent{true, false};
};

}  // namespace vorn_std_internal

namespace vorn_std {

namespace {
constexpr long ShutdownGraceMs = 10;
}

AbstractNotificationThread::AbstractNotificationThread(const std::wstring& name)
    : Thread(name), state(std::make_shared<vorn_std_internal::NotificationState>()) {}

AbstractNotificationThread::AbstractNotificationThread(const std::shared_ptr<Runnable>& runnable,
                                                       const std::wstring& name)
    : Thread(runnable, name), state(std::make_shared<vorn_std_internal::NotificationState>()) {}

AbstractNotificationThread::~AbstractNotificationThread() {
    shutdown();
    Thread::sleep(ShutdownGraceMs);
}

std::wstring AbstractNotificationThread::toString() const {
    return L"AbstractNotificationThread{" + Thread::toString() + L",isShutdownFlag=" +
           (isShutdown() ? L"1" : L"0") + L"}";
}

void AbstractNotificationThread::start() {
    AutoLock<Lock> guard(&state->lock);
    state->isShutdownFlag = false;
    Thread::start();
}

void AbstractNotificationThread::shutdown() {
    AutoLock<Lock> guard(&state->lock);
    state->isShutdownFlag = true;
    wakeup();
}

void AbstractNotificationThread::wakeup() {
    AutoLock<Lock> guard(&state->lock);
    state->wakeEvent.signal();
}

bool AbstractNotificationThread::isShutdown() const { return state->isShutdownFlag.load(); }

int AbstractNotificationThread::sleepForPeriod(long ms) {
    return Concurrency::waitForSingleObject(state->wakeEvent, ms);
}

}  // namespace vorn_std
