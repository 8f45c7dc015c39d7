#include "vorn_std/thread/Thread.h"

#include <cxxabi.h>
#include <sched.h>
#include <time.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <typeinfo>

#include "internal/PlatformText.h"
#include "internal/ThreadIdentity.h"
#include "internal/ThreadPimpl.h"
#include "internal/Trace.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/exception/VornAccessException.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/exception/VornIllegalStateException.h"
#include "vorn_std/exception/VornOutOfResourcesException.h"
#include "vorn_std/exception/VornUnknownException.h"
#include "vorn_std/exception/VornUnsupportedOperationException.h"
#include "vorn_std/log/VornLoggerSTD.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Concurrency.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* AlreadyRunningText = L"The current thread is already running!";
constexpr const wchar_t* NotRunningCancelText = L"The current thread is not running!";
constexpr const wchar_t* NotRunningPriorityText = L"The current thread is not running.";
constexpr const wchar_t* AttributesText = L"Out of resources to initialize thread attributes.";
constexpr const wchar_t* AttributeUnsupportedText = L"The requested operation is not supported";
constexpr const wchar_t* AttributeIllegalText = L"An illegal argument was specified.";
constexpr const wchar_t* CreateResourcesText = L"Out of resources to create thread.";
constexpr const wchar_t* CreateInvalidText = L"The thread attributes provided are invalid.";
constexpr const wchar_t* CreatePermissionText =
    L"The caller does not have permissions to set the required policy or priority.";
constexpr const wchar_t* PriorityUnsupportedText = L"The specified operation is not supported.";
constexpr const wchar_t* NoSuchThreadText = L"The specified thread does not exist.";
constexpr const wchar_t* PriorityInvalidText =
    L"An invalid scheduling policy or scheduling parameter was specified.";
constexpr const wchar_t* PriorityPermissionText =
    L"The caller does not have the appropriate permission to set the thread priority.";
constexpr int DefaultPolicy = 0;

// The scheduling range of the default policy, read once.
struct PriorityTable {
    int minimum;
    int maximum;
    int normal;
};

const PriorityTable& priorities() {
    static PriorityTable table;
    static std::once_flag once;
    std::call_once(once, [] {
        table.minimum = sched_get_priority_min(DefaultPolicy);
        table.maximum = sched_get_priority_max(DefaultPolicy);
        table.normal = (table.minimum + table.maximum) / 2;
    });
    return table;
}

// Holds a thread attribute object until the end of a scope.
class ThreadAttributes {
public:
    ThreadAttributes() {
        if (pthread_attr_init(&attributes) == ENOMEM) {
            throw VornOutOfResourcesException(AttributesText, ENOMEM);
        }
    }
    ~ThreadAttributes() { pthread_attr_destroy(&attributes); }
    pthread_attr_t* get() { return &attributes; }

private:
    pthread_attr_t attributes;
};

void checkAttributeResult(int result) {
    switch (result) {
        case 0: return;
        case ENOSYS:
        case ENOTSUP: throw VornUnsupportedOperationException(AttributeUnsupportedText, result);
        case EINVAL: throw VornIllegalArgumentException(AttributeIllegalText, result);
        default: throw VornUnknownException(ErrorUtils::getErrorDescription(result), result);
    }
}

void checkCreateResult(int result) {
    switch (result) {
        case 0: return;
        case EAGAIN:
        case ENOMEM: throw VornOutOfResourcesException(CreateResourcesText, result);
        case EINVAL: throw VornIllegalArgumentException(CreateInvalidText, result);
        case EPERM: throw VornAccessException(CreatePermissionText, result);
        default: throw VornUnknownException(ErrorUtils::getErrorDescription(result), result);
    }
}

void checkSchedulingResult(int result) {
    switch (result) {
        case 0: return;
        case EINVAL: throw VornIllegalArgumentException(PriorityInvalidText, result);
        case ENOSYS:
        case ENOTSUP: throw VornUnsupportedOperationException(PriorityUnsupportedText, result);
        case EPERM: throw VornAccessException(PriorityPermissionText, result);
        case ESRCH: throw VornIllegalStateException(NoSuchThreadText, result);
        default: throw VornUnknownException(ErrorUtils::getErrorDescription(result), result);
    }
}

}  // namespace

Thread::Thread(const std::wstring& name)
    : Waitable(false, true),
      implementation(std::make_shared<vorn_std_internal::ThreadPimpl>(this, nullptr, name)),
      joinOnDestruct(false) {}

Thread::Thread(const std::shared_ptr<Runnable>& runnable, const std::wstring& name)
    : Waitable(false, true),
      implementation(std::make_shared<vorn_std_internal::ThreadPimpl>(this, runnable, name)),
      joinOnDestruct(true) {}

Thread::~Thread() {
    if (joinOnDestruct && getState() == THREAD_RUNNING) {
        Concurrency::waitForSingleObject(*this, -1);
    }
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    implementation->threadObjectGone = true;
}

std::wstring Thread::toString() const { return L"Thread{name='" + getName() + L"'}"; }

void Thread::start() {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    if (getState() == THREAD_RUNNING) {
        throw VornIllegalStateException(AlreadyRunningText);
    }
    ThreadAttributes attributes;
    struct sched_param parameter {};
    parameter.sched_priority = priorities().normal;
    int result = pthread_attr_setschedpolicy(attributes.get(), DefaultPolicy);
    if (result == 0) {
        result = pthread_attr_setschedparam(attributes.get(), &parameter);
    }
    checkAttributeResult(result);
    pthread_attr_setdetachstate(attributes.get(), PTHREAD_CREATE_DETACHED);
    // The new thread owns a pointer of its own: the object may go at once.
    auto* shared = new std::shared_ptr<vorn_std_internal::ThreadPimpl>(implementation);
    result = pthread_create(&implementation->handle, attributes.get(),
                            &vorn_std_internal::ThreadPimpl::threadFunction, shared);
    if (result != 0) {
        delete shared;
        checkCreateResult(result);
    }
    // Still under the mutex: the new thread cannot signal its start before this reset.
    setSignaled(false);
    implementation->startedEvent.reset();
    implementation->state = THREAD_RUNNING;
}

void Thread::run() {
    if (implementation->runnable) {
        implementation->runnable->run();
    }
}

bool Thread::join(long timeoutMs) { return Concurrency::waitForSingleObject(*this, timeoutMs) == 0; }

int Thread::waitForStart(long timeoutMs) {
    return Concurrency::waitForSingleObject(implementation->startedEvent, timeoutMs);
}

void Thread::cancel() {
    {
        AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
        if (implementation->state != THREAD_RUNNING) {
            throw VornIllegalStateException(NotRunningCancelText);
        }
        if (pthread_cancel(implementation->handle) == 0) {
            implementation->state = THREAD_STOPPED;
        }
    }
    signal();
}

Thread::ThreadState Thread::getState() {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    return implementation->state;
}

Thread::ThreadPriority Thread::getPriority() {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    if (getState() != THREAD_RUNNING) {
        throw VornIllegalStateException(NotRunningPriorityText);
    }
    int policy = 0;
    struct sched_param parameter {};
    checkSchedulingResult(pthread_getschedparam(implementation->handle, &policy, &parameter));
    if (parameter.sched_priority == priorities().maximum) {
        return PRIORITY_HIGH;
    }
    return parameter.sched_priority != priorities().minimum ? PRIORITY_NORMAL : PRIORITY_LOW;
}

void Thread::setPriority(ThreadPriority priority) {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    if (getState() != THREAD_RUNNING) {
        throw VornIllegalStateException(NotRunningPriorityText);
    }
    struct sched_param parameter {};
    parameter.sched_priority = priority == PRIORITY_HIGH  ? priorities().maximum
                               : priority == PRIORITY_LOW ? priorities().minimum
                                                          : priorities().normal;
    checkSchedulingResult(pthread_setschedparam(implementation->handle, DefaultPolicy, &parameter));
}

std::wstring Thread::getName() const {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    return implementation->name;
}

void Thread::setName(const std::wstring& name) {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    implementation->name = name;
}

void Thread::setJoinOnDestruct(bool join) { joinOnDestruct = join; }

bool Thread::isJoinOnDestruct() const { return joinOnDestruct; }

unsigned long long Thread::getId() const {
    AutoLock<vorn_std_internal::ThreadPimpl> guard(implementation.get());
    if (implementation->state != THREAD_RUNNING) {
        return InvalidThreadID;
    }
    return vorn_std_internal::ThreadIdMap::getInstance().getThreadId(implementation->handle);
}

void Thread::sleep(long ms) {
    const long long duration = ms < 0 ? 0 : ms;
    struct timespec remaining {};
    remaining.tv_sec = static_cast<time_t>(duration / 1000);
    remaining.tv_nsec = static_cast<long>((duration % 1000) * 1000000);
    while (nanosleep(&remaining, &remaining) != 0 && errno == EINTR) {
    }
}

}  // namespace vorn_std

namespace vorn_std_internal {

using vorn_std::Thread;

namespace {

constexpr const wchar_t* ThreadFunction = L"vorn_std::Thread::threadFunction";

std::wstring readableTypeName(const std::type_info& type) {
    int status = 0;
    char* demangled = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    const std::wstring name = fromPlatformUtf8(status == 0 && demangled ? demangled : type.name());
    std::free(demangled);
    return name;
}

}  // namespace

ThreadPimpl::ThreadPimpl(Thread* owner, const std::shared_ptr<vorn_std::Runnable>& runnable,
                         const std::wstring& name)
    : state(Thread::THREAD_NOT_STARTED),
      handle(0),
      runnable(runnable),
      threadObjectGone(false),
      owner(owner),
      name(name),
      startedEvent(false, false) {
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(&mutex, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

ThreadPimpl::~ThreadPimpl() { pthread_mutex_destroy(&mutex); }

void* ThreadPimpl::threadFunction(void* argument) {
    vorn_std::VornException::installHandler();
    std::unique_ptr<std::shared_ptr<ThreadPimpl>> owned(
        static_cast<std::shared_ptr<ThreadPimpl>*>(argument));
    const std::shared_ptr<ThreadPimpl> self = *owned;
    owned.reset();
    const std::wstring id = std::to_wstring(Thread::getCurrentThreadId());
    std::wstring threadName;
    {
        vorn_std::AutoLock<ThreadPimpl> guard(self.get());
        threadName = self->name;
        self->startedEvent.signal();
    }
    pthread_setcanceltype(PTHREAD_CANCEL_DEFERRED, nullptr);
    try {
        self->runBody(id, threadName);
    } catch (abi::__forced_unwind&) {
        self->finish(id, threadName);
        throw;
    }
    self->finish(id, threadName);
    return nullptr;
}

// A plain Thread (no subclass) runs its Runnable without touching the Thread
// object, which its owner may destroy at any moment; a subclass's own run()
// needs its object, which must outlive it.
void ThreadPimpl::runBody(const std::wstring& id, const std::wstring& threadName) {
    Thread* target = nullptr;
    {
        vorn_std::AutoLock<ThreadPimpl> guard(this);
        if (!threadObjectGone && typeid(*owner) != typeid(Thread)) {
            target = owner;
        }
    }
    std::wstring reason;
    try {
        if (target != nullptr) {
            target->run();
        } else if (runnable) {
            runnable->run();
        }
        return;
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (const vorn_std::VornException& e) {
        reason = e.getMessage();
        VORN_DEBUG(ThreadFunction, L"Caught exception %ls in <%ls:%ls> Thread::run", reason.c_str(),
                   id.c_str(), threadName.c_str());
    } catch (const std::exception& e) {
        const std::wstring type = readableTypeName(typeid(e));
        reason = L"Caught std::exception of type " + type;
        VORN_DEBUG(ThreadFunction, L"Caught exception %ls in <%ls:%ls> Thread::run", type.c_str(),
                   id.c_str(), threadName.c_str());
    } catch (...) {
        reason = L"Caught unknown exception.";
        VORN_DEBUG(ThreadFunction, L"Caught unexpected exception in <%ls:%ls> Thread::run",
                   id.c_str(), threadName.c_str());
    }
    vorn_std::VornLoggerSTD::getInstance().STD3008(ThreadFunction, id.c_str(), threadName.c_str(),
                                                   reason.c_str());
}

// The Thread object is touched only while it still exists; joiners are released here.
void ThreadPimpl::finish(const std::wstring& id, const std::wstring& threadName) {
    try {
        vorn_std::AutoLock<ThreadPimpl> guard(this);
        if (!threadObjectGone) {
            state = Thread::THREAD_STOPPED;
            owner->signal();
        }
        ThreadIdMap::getInstance().forget(pthread_self());
    } catch (...) {
        VORN_DEBUG(ThreadFunction, L"Caught unexpected exception in <%ls:%ls> locking Thread mutex.",
                   id.c_str(), threadName.c_str());
        std::fflush(stdout);
    }
}

}  // namespace vorn_std_internal
