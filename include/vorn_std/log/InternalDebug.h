#pragma once

#include "vorn_std/base/Export.h"
#include "vorn_std/log/StaticLog.h"

// The library's own trace entry points. A statement has one shape: test the
// _on function, and only if it passes build the file and function strings and
// call the matching entry point, so that a disabled statement builds nothing.
//   if (__internal_debug_on())
//       __internal_debug(L"vorn_std::File::exists", L"File.cpp", __LINE__, L"<%ls>", name);

namespace vorn_std {

inline bool __internal_debug_on() { return StaticLog::isThresholdOn(DEBUG); }
inline bool __internal_call_on() { return StaticLog::isThresholdOn(CALL); }
inline bool __internal_trace_on() { return StaticLog::isThresholdOn(TRACE); }
inline bool __internal_dump_on() { return StaticLog::isThresholdOn(DUMP); }

// Module "VornStd", empty error id, the calling thread's id.
VORNSTD_API void __internal_debug(const wchar_t* function, const wchar_t* file, unsigned int line,
                                  const wchar_t* format, ...);
VORNSTD_API void __internal_call(const wchar_t* function, const wchar_t* file, unsigned int line,
                                 const wchar_t* format, ...);
VORNSTD_API void __internal_trace(const wchar_t* function, const wchar_t* file, unsigned int line,
                                  const wchar_t* format, ...);
VORNSTD_API void __internal_dump(const wchar_t* function, const wchar_t* file, unsigned int line,
                                 const wchar_t* format, ...);

}  // namespace vorn_std
