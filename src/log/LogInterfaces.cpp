#include "vorn_std/log/ILogEventFilter.h"
#include "vorn_std/log/ILogEventLayout.h"

// The interfaces' destructors, anchoring their type information in the library.
namespace vorn_std {

ILogEventFilter::~ILogEventFilter() = default;
ILogEventLayout::~ILogEventLayout() = default;

}  // namespace vorn_std
