#pragma once

#include <cstdio>
#include <cstdlib>

// A property of the code under test that every input must keep. A failure
// aborts, which libFuzzer reports as a crash and saves the input for.
#define FUZZ_CHECK(condition)                                                                     \
    do {                                                                                          \
        if (!(condition)) {                                                                       \
            std::fprintf(stderr, "%s:%d: property failed: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                         \
        }                                                                                         \
    } while (0)

// The debug lines of rejected inputs are formatted as usual, then dropped,
// unless whoever runs the target has chosen a destination.
#define FUZZ_QUIET_DEBUG_OUTPUT()                        \
    extern "C" int LLVMFuzzerInitialize(int*, char***) { \
        setenv("VORNSTD_DEBUG_OUTPUT", "none", 0);       \
        return 0;                                        \
    }
