#include "internal/FaultDescription.h"

namespace vorn_std_internal {

namespace {

struct CodeText {
    uint32_t code;
    const char* text;
};

constexpr CodeText Descriptions[] = {
    {AccessViolation,
     "The thread tried to read from or write to a virtual address for which it does not have "
     "the appropriate access."},
    {DatatypeMisalignment,
     "The thread tried to read or write data that is misaligned on hardware that does not "
     "provide alignment. For example, 16-bit values must be aligned on 2-byte boundaries; "
     "32-bit values on 4-byte boundaries, and so on."},
    {Breakpoint, "A breakpoint was encountered."},
    {SingleStep,
     "A trace trap or other single-instruction mechanism signaled that one instruction has been "
     "executed."},
    {InPageError,
     "The thread tried to access a page that was not present, and the system was unable to load "
     "the page. For example, this exception might occur if a network connection is lost while "
     "running a program over the network."},
    {IllegalInstruction, "The thread tried to execute an invalid instruction."},
    {NoncontinuableException,
     "The thread tried to continue execution after a noncontinuable exception occurred."},
    {InvalidDisposition,
     "An exception handler returned an invalid disposition to the exception dispatcher. "
     "Programmers using a high-level language such as C should never encounter this exception."},
    {ArrayBoundsExceeded,
     "The thread tried to access an array element that is out of bounds and the underlying "
     "hardware supports bounds checking."},
    {FltDenormalOperand,
     "One of the operands in a floating-point operation is denormal. A denormal value is one "
     "that is too small to represent as a standard floating-point value."},
    {FltDivideByZero,
     "The thread tried to divide a floating-point value by a floating-point divisor of zero."},
    {FltInexactResult,
     "The result of a floating-point operation cannot be represented exactly as a decimal "
     "fraction."},
    {FltInvalidOperation,
     "This exception represents any floating-point exception not included in this list."},
    {FltOverflow,
     "The exponent of a floating-point operation is greater than the magnitude allowed by the "
     "corresponding type."},
    {FltStackCheck,
     "The stack overflowed or underflowed as the result of a floating-point operation."},
    {FltUnderflow,
     "The exponent of a floating-point operation is less than the magnitude allowed by the "
     "corresponding type."},
    {IntDivideByZero, "The thread tried to divide an integer value by an integer divisor of zero."},
    {IntOverflow,
     "The result of an integer operation caused a carry out of the most significant bit of the "
     "result."},
    {PrivInstruction,
     "The thread tried to execute an instruction whose operation is not allowed in the current "
     "machine mode."},
    {StackOverflow, "The thread used up its stack."},
};

constexpr const char* UnknownCodeText = "Win32 exception";

// Appends to a fixed buffer, dropping what does not fit.
class Writer {
public:
    Writer(char* out, size_t capacity) : out(out), capacity(capacity) {}

    Writer& text(const char* s) {
        while (*s != '\0') {
            put(*s++);
        }
        return *this;
    }
    Writer& hex(uintptr_t value) {
        char digits[2 * sizeof value];
        size_t count = 0;
        do {
            digits[count++] = "0123456789abcdef"[value & 0xF];
            value >>= 4;
        } while (value != 0);
        while (count > 0) {
            put(digits[--count]);
        }
        return *this;
    }
    size_t finish() {
        if (capacity > 0) {
            out[length < capacity ? length : capacity - 1] = '\0';
        }
        return length < capacity ? length : (capacity > 0 ? capacity - 1 : 0);
    }

private:
    void put(char c) {
        if (length + 1 < capacity) {
            out[length] = c;
        }
        ++length;
    }

    char* out;
    size_t capacity;
    size_t length = 0;
};

}  // namespace

const char* faultCodeDescription(uint32_t code) {
    for (const CodeText& entry : Descriptions) {
        if (entry.code == code) {
            return entry.text;
        }
    }
    return UnknownCodeText;
}

size_t formatFaultDescription(const FaultRecord& record, char* out, size_t capacity) {
    Writer writer(out, capacity);
    writer.text(faultCodeDescription(record.code))
        .text(record.flags != 0 ? " Noncontinuable exception." : " Continuable exception.")
        .text(" ExceptionAddress = 0x")
        .hex(record.address)
        .text(". NumberParameters = ")
        .hex(record.parameterCount)
        .text(".");
    for (size_t i = 0; i < record.parameterCount; ++i) {
        writer.text(" Param ").hex(i).text(" value = ").hex(record.parameters[i]).text(".");
    }
    return writer.finish();
}

}  // namespace vorn_std_internal
