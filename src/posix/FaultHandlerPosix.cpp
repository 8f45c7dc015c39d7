#include <pthread.h>
#include <signal.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <cstring>
#include <mutex>

#include "internal/DebugOutput.h"
#include "internal/FaultDescription.h"
#include "internal/FaultHandler.h"

namespace vorn_std_internal {

namespace {

constexpr int FaultSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};
constexpr size_t AltStackSize = 64 * 1024;

uint32_t faultCodeOf(int signal, int code) {
    switch (signal) {
        case SIGFPE:
            switch (code) {
                case FPE_INTDIV: return IntDivideByZero;
                case FPE_INTOVF: return IntOverflow;
                case FPE_FLTDIV: return FltDivideByZero;
                case FPE_FLTOVF: return FltOverflow;
                case FPE_FLTUND: return FltUnderflow;
                case FPE_FLTRES: return FltInexactResult;
                case FPE_FLTSUB: return ArrayBoundsExceeded;
                default: return FltInvalidOperation;
            }
        case SIGILL:
            return code == ILL_PRVOPC || code == ILL_PRVREG ? PrivInstruction : IllegalInstruction;
        default:
            return AccessViolation;
    }
}

uintptr_t instructionAddress(const siginfo_t* info, const void* context) {
#if defined(__x86_64__)
    (void)info;
    const auto* uc = static_cast<const ucontext_t*>(context);
    return static_cast<uintptr_t>(uc->uc_mcontext.gregs[REG_RIP]);
#else
    (void)context;
    return reinterpret_cast<uintptr_t>(info->si_addr);
#endif
}

// For an access violation: whether the access was a write (1) or a read (0).
uintptr_t accessKind(const void* context) {
#if defined(__x86_64__)
    const auto* uc = static_cast<const ucontext_t*>(context);
    return (uc->uc_mcontext.gregs[REG_ERR] & 0x2) != 0 ? 1 : 0;
#else
    (void)context;
    return 0;
#endif
}

void onFault(int signal, siginfo_t* info, void* context) {
    const uint32_t code = faultCodeOf(signal, info->si_code);
    uintptr_t parameters[2] = {0, 0};
    size_t parameterCount = 0;
    if (code == AccessViolation) {
        parameters[0] = accessKind(context);
        parameters[1] = reinterpret_cast<uintptr_t>(info->si_addr);
        parameterCount = 2;
    }
    const FaultRecord record{code, 0, instructionAddress(info, context), parameters,
                             parameterCount};
    char text[1024];
    size_t length = formatFaultDescription(record, text, sizeof text - 1);
    text[length++] = '\n';
    DebugOutput::writeBytes(text, length);

    // Back to the default action: returning re-runs the faulting instruction,
    // which then ends the process with a core; a signal sent by kill() is raised again.
    struct sigaction fallback;
    std::memset(&fallback, 0, sizeof fallback);
    fallback.sa_handler = SIG_DFL;
    sigemptyset(&fallback.sa_mask);
    sigaction(signal, &fallback, nullptr);
    if (info->si_code <= 0) {
        raise(signal);
    }
}

void installProcessActions() {
    for (int signal : FaultSignals) {
        struct sigaction current;
        if (sigaction(signal, nullptr, &current) != 0) {
            continue;
        }
        // Another component (a JVM uses SIGSEGV for its own checks) keeps its action.
        const bool isDefault = (current.sa_flags & SA_SIGINFO) == 0 && current.sa_handler == SIG_DFL;
        if (!isDefault) {
            continue;
        }
        struct sigaction action;
        std::memset(&action, 0, sizeof action);
        action.sa_sigaction = onFault;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
        sigemptyset(&action.sa_mask);
        sigaction(signal, &action, nullptr);
    }
}

void releaseAltStack(void* memory) {
    stack_t disable;
    std::memset(&disable, 0, sizeof disable);
    disable.ss_flags = SS_DISABLE;
    sigaltstack(&disable, nullptr);
    munmap(memory, AltStackSize);
}

pthread_key_t altStackKey() {
    static pthread_key_t key;
    static std::once_flag once;
    std::call_once(once, [] { pthread_key_create(&key, releaseAltStack); });
    return key;
}

// A fault from a used-up stack can only be reported from a stack of its own.
void installAltStack() {
    const pthread_key_t key = altStackKey();
    if (pthread_getspecific(key) != nullptr) {
        return;
    }
    void* memory = mmap(nullptr, AltStackSize, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return;
    }
    stack_t stack;
    std::memset(&stack, 0, sizeof stack);
    stack.ss_sp = memory;
    stack.ss_size = AltStackSize;
    if (sigaltstack(&stack, nullptr) != 0) {
        munmap(memory, AltStackSize);
        return;
    }
    pthread_setspecific(key, memory);
}

}  // namespace

void installFaultHandler() {
    static std::once_flag once;
    std::call_once(once, installProcessActions);
    installAltStack();
}

}  // namespace vorn_std_internal
