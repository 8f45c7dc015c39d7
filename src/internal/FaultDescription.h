#pragma once

#include <cstddef>
#include <cstdint>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// Codes of the faults a thread can meet, in their Windows numbering, which is
// the form hosts and their support staff know from the library's other ports.
enum FaultCode : uint32_t {
    AccessViolation = 0xC0000005u,
    DatatypeMisalignment = 0x80000002u,
    Breakpoint = 0x80000003u,
    SingleStep = 0x80000004u,
    InPageError = 0xC0000006u,
    IllegalInstruction = 0xC000001Du,
    NoncontinuableException = 0xC0000025u,
    InvalidDisposition = 0xC0000026u,
    ArrayBoundsExceeded = 0xC000008Cu,
    FltDenormalOperand = 0xC000008Du,
    FltDivideByZero = 0xC000008Eu,
    FltInexactResult = 0xC000008Fu,
    FltInvalidOperation = 0xC0000090u,
    FltOverflow = 0xC0000091u,
    FltStackCheck = 0xC0000092u,
    FltUnderflow = 0xC0000093u,
    IntDivideByZero = 0xC0000094u,
    IntOverflow = 0xC0000095u,
    PrivInstruction = 0xC0000096u,
    StackOverflow = 0xC00000FDu
};

struct FaultRecord {
    uint32_t code;
    uint32_t flags;  // 0 for a continuable fault
    uintptr_t address;
    const uintptr_t* parameters;
    size_t parameterCount;
};

// The description of a code; "Win32 exception" for any other.
VORNSTD_API const char* faultCodeDescription(uint32_t code);

// Writes the fault's text into out (NUL-terminated, cut to capacity) and
// returns its length. Async-signal-safe: no allocation, no locale.
VORNSTD_API size_t formatFaultDescription(const FaultRecord& record, char* out, size_t capacity);

}  // namespace vorn_std_internal
