#include <gtest/gtest.h>

#include <signal.h>
#include <sys/mman.h>
#include <stdlib.h>

#include <cstdio>
#include <string>

#include "internal/FaultDescription.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std_internal;

TEST(FaultDescription, AccessViolationWithParametersInHexadecimal) {
    const uintptr_t parameters[] = {1, 0x2a};
    const FaultRecord record{AccessViolation, 0, 0x401000, parameters, 2};
    char text[512];
    formatFaultDescription(record, text, sizeof text);
    EXPECT_STREQ(
        "The thread tried to read from or write to a virtual address for which it does not have "
        "the appropriate access. Continuable exception. ExceptionAddress = 0x401000. "
        "NumberParameters = 2. Param 0 value = 1. Param 1 value = 2a.",
        text);
}

TEST(FaultDescription, UnknownCodeAndNoncontinuableFlag) {
    uintptr_t parameters[17] = {};
    parameters[16] = 0xff;
    const FaultRecord record{0xE0000001u, 1, 0, parameters, 17};
    char text[1024];
    formatFaultDescription(record, text, sizeof text);
    const std::string s = text;
    EXPECT_EQ(0u, s.find("Win32 exception Noncontinuable exception. ExceptionAddress = 0x0. "
                         "NumberParameters = 11."));
    EXPECT_NE(std::string::npos, s.find(" Param 10 value = ff."));
}

TEST(FaultDescription, CutToCapacityAndTerminated) {
    const FaultRecord record{IntDivideByZero, 0, 0, nullptr, 0};
    char text[16];
    EXPECT_EQ(15u, formatFaultDescription(record, text, sizeof text));
    EXPECT_STREQ("The thread trie", text);
    EXPECT_STREQ("The thread used up its stack.", faultCodeDescription(StackOverflow));
}

namespace {

void resetToDefault(int signal) {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
}

// A page that exists but may not be touched.
volatile int* forbiddenPage() {
    static void* page = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return static_cast<volatile int*>(page);
}

[[noreturn]] void faultOnForbiddenWrite() {
    unsetenv("VORNSTD_DEBUG_OUTPUT");
    resetToDefault(SIGSEGV);  // a sanitizer may own it; this process plays a plain host
    vorn_std::VornException::installHandler();
    *forbiddenPage() = 1;
    abort();
}

std::string hex(const volatile void* address) {
    char text[32];
    std::snprintf(text, sizeof text, "%lx", reinterpret_cast<unsigned long>(address));
    return text;
}

[[noreturn]] void faultOnIllegalInstruction() {
    unsetenv("VORNSTD_DEBUG_OUTPUT");
    resetToDefault(SIGILL);
    vorn_std::VornException::installHandler();
    __builtin_trap();
}

void otherHandler(int) {}

}  // namespace

TEST(FaultHandlerDeathTest, AccessViolationIsDescribedThenTheProcessDies) {
    const std::string expected =
        "The thread tried to read from or write to a virtual address for which it does not have "
        "the appropriate access\\. Continuable exception\\. ExceptionAddress = 0x[0-9a-f]+\\. "
        "NumberParameters = 2\\. Param 0 value = 1\\. Param 1 value = " +
        hex(forbiddenPage()) + "\\.\n";
    EXPECT_EXIT(faultOnForbiddenWrite(), testing::KilledBySignal(SIGSEGV), expected);
}

TEST(FaultHandlerDeathTest, IllegalInstructionIsDescribed) {
    EXPECT_EXIT(faultOnIllegalInstruction(), testing::KilledBySignal(SIGILL),
                "The thread tried to execute an invalid instruction\\. Continuable exception\\. "
                "ExceptionAddress = 0x[0-9a-f]+\\. NumberParameters = 0\\.");
}

TEST(FaultHandler, LeavesAnotherComponentsActionInPlace) {
    struct sigaction previous {};
    struct sigaction mine {};
    mine.sa_handler = otherHandler;
    sigaction(SIGBUS, &mine, &previous);
    vorn_std::VornException::installHandler();
    vorn_std::VornException::installHandler();
    struct sigaction now {};
    sigaction(SIGBUS, nullptr, &now);
    EXPECT_EQ(reinterpret_cast<void*>(otherHandler), reinterpret_cast<void*>(now.sa_handler));
    sigaction(SIGBUS, &previous, nullptr);
}
