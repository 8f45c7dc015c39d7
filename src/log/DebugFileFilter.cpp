#include "vorn_std/log/DebugFileFilter.h"

namespace vorn_std {

std::wstring DebugFileFilter::toString() const { return L"DebugFileFilter{}"; }

std::wstring DebugFileFilter::getClassName() const { return L"vorn_std.DebugFileFilter"; }

Configurable* DebugFileFilter::newInstance(const Properties&) { return new DebugFileFilter(); }

FilterDecision DebugFileFilter::decide(const LogEvent&) { return 0; }

}  // namespace vorn_std
