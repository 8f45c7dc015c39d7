#pragma once

namespace vorn_std_internal {

// Makes the calling thread's hardware faults visible: the fault's description
// goes to the debugger output, then the default action (a core dump) follows.
// Harmless to call twice; leaves alone any action another component (a JVM)
// has installed.
void installFaultHandler();

}  // namespace vorn_std_internal
